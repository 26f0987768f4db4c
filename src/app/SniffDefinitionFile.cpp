#include "app/SniffDefinitionFile.h"

#include <algorithm>

#include "platform/Platform.h"
#include "services/CRuntime.h"
#include "services/Tokenizer.h"
#include "services/WideStream.h"

namespace {

constexpr size_t kLineBuffer = 32768;

}  // namespace

int SniffDefinitionFile(const std::wstring& path) {
    WideStream stream;
    if (!stream.Open(path)) {
        platform::Current().prompts.ShowMessage(L"Cannot open " + path, platform::kStyleOk);
        return 0;
    }
    bool exRun = false;
    int runCount = 0;
    std::wstring line;
    while (stream.ReadLine(line, kLineBuffer)) {
        crt::Replace(line, L"\uFEFF", L"");
        crt::Replace(line, L"\r\n", L"");
        std::replace(line.begin(), line.end(), L'\t', L' ');
        line = crt::Trim(line);
        if (line.empty() || line.starts_with(L"//")) continue;
        if (line == L"EOF") break;
        std::wstring key = LeftOfSeparator(line, L'=', true);
        if (key == L"exrun" || key == L"run") {
            if (RightOfSeparator(line, L'=', true).empty()) continue;
            if (key == L"exrun")
                exRun = true;
            else
                ++runCount;
        } else if (key == L"call" || key == L"exec" || key == L"shell") {
            // A line that starts a program directly: the file is a script.
            exRun = false;
            runCount = 0;
            break;
        }
    }
    if (exRun) return runCount == 0 ? 1 : 0;
    return runCount == 1 ? 2 : 0;
}
