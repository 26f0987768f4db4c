#include "bindings/WheelScript.h"

#include <array>

#include "app/AppServices.h"
#include "app/DefinitionEditing.h"
#include "platform/Platform.h"
#include "services/FileTests.h"
#include "services/Format.h"
#include "services/MessageIds.h"
#include "services/WholeFileWriter.h"

namespace {

constexpr wchar_t kLetters[] = L"LRM12ACS";
constexpr uint32_t kHeldBoxes = kWheelUp - 1;

}  // namespace

std::wstring WheelScriptName(uint32_t boxes) {
    std::wstring combination;
    for (int box = 0; box < kWheelBoxes - 1; ++box) combination += (boxes & (1u << box)) ? kLetters[box] : L'-';
    combination += (boxes & kWheelUp) ? L'U' : L'D';
    return crt::Format(L"_ListWheel%s.txt", combination);
}

bool WheelScriptTestable(int32_t useWheelCmd, uint32_t boxes) {
    return useWheelCmd == 1 && (boxes & kHeldBoxes) != 0;
}

void OpenWheelScript(AppServices& app, const std::wstring& name) {
    const std::wstring path = crt::Format(L"%sScript\\%s", app.directories.UserDirectory(), name);
    platform::Prompts& prompts = platform::Current().prompts;
    if (!FileExists(path)) {
        const std::wstring question = crt::Format(app.messages.Get(kMsgCreateFileQuestion).c_str(), path);
        if (prompts.ShowMessage(question, platform::kStyleYesNo) != platform::kAnswerYes) return;
        static constexpr std::array<uint8_t, 2> kByteOrderMark = {0xFF, 0xFE};
        if (!WriteWholeFile(path, kByteOrderMark)) {
            prompts.ShowMessage(app.messages.Get(kMsgCannotCreateFile), platform::kStyleOk);
            return;
        }
    }
    RunEditorScript(app, path);
}
