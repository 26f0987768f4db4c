#include "script/ScriptCall.h"

#include "platform/Platform.h"
#include "services/ProcessLaunch.h"
#include "services/SystemError.h"

namespace {

// What GetExitCodeProcess gives for a program still running, and what an ended "call" returns.
constexpr const wchar_t* kStillActive = L"259";

}  // namespace

std::optional<std::wstring> CallProgram(CallKind kind, const std::wstring& commandLine, const CallSettings& settings) {
    platform::Platform& os = platform::Current();
    const std::wstring& directory = settings.bootDirectory.empty() ? settings.nowDirectory : settings.bootDirectory;
    platform::ProcessStart start{commandLine, directory, true, settings.show, kNormalPriorityClass};
    uint32_t error = 0;
    auto process = os.processes.Start(start, error);
    if (!process) {
        ShowSystemError(error);
        return std::nullopt;
    }
    std::optional<std::wstring> result;
    if (kind == CallKind::Call && process->Wait(settings.timeout) == platform::kWaitTimeout &&
        AskToEndProgram(*process)) {
        result = kStillActive;
    } else {
        uint32_t code = 0;
        if (process->ExitCode(code, error))
            result = std::to_wstring(static_cast<int32_t>(code));
        else
            ShowSystemError(error);
    }
    process.reset();
    if (settings.runWait != 0) os.processes.Sleep(settings.runWait);
    return result;
}
