#include "services/ProcessLaunch.h"

#include "platform/Platform.h"
#include "services/LongPath.h"
#include "services/MessageCatalog.h"
#include "services/MessageIds.h"
#include "services/PathHelpers.h"
#include "services/SystemError.h"

namespace {

constexpr uint32_t kKilledExitCode = 999;
constexpr uint32_t kDropWaitMs = 10000;
constexpr uint32_t kWindowPollMs = 50;
// SEE_MASK_DOENVSUBST, and SEE_MASK_NOASYNC with it when the caller waits.
constexpr uint32_t kShellMask = 512;
constexpr uint32_t kShellMaskWait = 768;


constexpr const wchar_t* kKillQuestion = L"Timeout!\nAre you sure you want to kill the process?";

void AppendUnits(std::vector<uint8_t>& bytes, uint32_t value, int count) {
    for (int i = 0; i < count; ++i) bytes.push_back(static_cast<uint8_t>(value >> (8 * i)));
}

void AppendText(std::vector<uint8_t>& bytes, const std::wstring& text) {
    for (wchar_t unit : text) AppendUnits(bytes, static_cast<uint16_t>(unit), 2);
    AppendUnits(bytes, 0, 2);
}

// The started program's first visible window; it may take a while to show one.
platform::WindowRef WaitForWindow(platform::Processes& processes, uint32_t processId) {
    uint64_t start = processes.Ticks();
    for (;;) {
        if (platform::WindowRef window = processes.FindVisibleWindow(processId)) return window;
        if (processes.Ticks() - start > kDropWaitMs) return 0;
        processes.Sleep(kWindowPollMs);
    }
}

}  // namespace

bool WaitedLaunch(const std::wstring& program, const std::wstring& arguments, const std::wstring& directory, int show,
                  uint32_t timeoutMs) {
    platform::Platform& os = platform::Current();
    platform::ProcessStart start{program + L" " + arguments, directory, true, show, 0};
    uint32_t error = 0;
    auto process = os.processes.Start(start, error);
    if (!process) return false;
    if (process->Wait(timeoutMs) != platform::kWaitTimeout) return true;
    AskToEndProgram(*process);
    return false;
}

bool AskToEndProgram(platform::StartedProcess& process) {
    if (platform::Current().prompts.ShowMessage(kKillQuestion, platform::kStyleYesNo) != platform::kAnswerYes)
        return false;
    process.Terminate(kKilledExitCode);
    return true;
}

void DropLaunch(const std::wstring& program, const std::vector<std::wstring>& files, MessageCatalog& messages) {
    platform::Platform& os = platform::Current();
    platform::ProcessStart start{program, L"", false, 0, kNormalPriorityClass};
    uint32_t error = 0;
    auto process = os.processes.Start(start, error);
    if (!process) {
        os.prompts.ShowMessage(messages.Get(kMsgCannotStartProgram) + L"\n" + program, platform::kStyleOk);
        return;
    }
    switch (process->WaitForIdle(kDropWaitMs, error)) {
        case platform::kWaitTimeout:
            os.prompts.ShowMessage(messages.Get(kMsgProgramNotIdle), platform::kStyleOk);
            return;
        case platform::kWaitFailed:
            ShowSystemError(error);
            return;
        default:
            break;
    }
    platform::WindowRef window = WaitForWindow(os.processes, process->Id());
    if (!window) {
        os.prompts.ShowMessage(messages.Get(kMsgProgramShowsNoWindow), platform::kStyleOk);
        return;
    }
    if (!files.empty()) os.processes.PostDropFiles(window, DropFilesBlock(files));
    os.windows.ForceForeground(window);
}

void ShellLaunch(const std::wstring& file, const std::wstring& parameters, const std::wstring& directory, bool wait,
                 int show) {
    platform::Platform& os = platform::Current();
    std::wstring path = NormaliseLongName(file);
    std::wstring folder = directory.empty() ? DirectoryPart(path) : directory;
    platform::ShellRequest request{wait ? kShellMaskWait : kShellMask,
                                   os.windows.MainWindow(),
                                   ToLongPathForm(path),
                                   parameters,
                                   ToLongPathForm(folder),
                                   show};
    os.processes.ExecuteShell(request);
}

std::vector<uint8_t> DropFilesBlock(const std::vector<std::wstring>& paths) {
    constexpr uint32_t kHeaderBytes = 20;
    std::vector<uint8_t> bytes;
    AppendUnits(bytes, kHeaderBytes, 4);  // pFiles
    AppendUnits(bytes, 0, 4);             // pt.x
    AppendUnits(bytes, 0, 4);             // pt.y
    AppendUnits(bytes, 0, 4);             // fNC
    AppendUnits(bytes, 1, 4);             // fWide
    for (const std::wstring& path : paths) AppendText(bytes, path);
    AppendUnits(bytes, 0, 2);
    return bytes;
}
