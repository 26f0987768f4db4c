#include "app/SniffDefinitionFile.h"

#include "definitions/RunDefinition.h"
#include "platform/Platform.h"

namespace {

// At most 32767 units a line.
constexpr size_t kLineBuffer = 32768;

}  // namespace

int SniffDefinitionFile(const std::wstring& path) {
    bool exRun = false;
    int runCount = 0;
    const bool opened = ReadDefinitionLines(path, kLineBuffer, [&](const std::wstring& key, const std::wstring& value) {
        if (key == L"call" || key == L"exec" || key == L"shell") {
            // A line that starts a program directly: the file is a script.
            exRun = false;
            runCount = 0;
            return false;
        }
        if (value.empty()) return true;
        if (key == L"exrun") exRun = true;
        if (key == L"run") ++runCount;
        return true;
    });
    if (!opened) {
        platform::Current().prompts.ShowMessage(L"Cannot open " + path, platform::kStyleOk);
        return 0;
    }
    if (exRun) return runCount == 0 ? 1 : 0;
    return runCount == 1 ? 2 : 0;
}
