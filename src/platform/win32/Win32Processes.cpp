#include "platform/win32/Win32Processes.h"

#include <windows.h>
// after windows.h, which it needs
#include <shellapi.h>

#include <cstring>
#include <memory>

namespace platform::win32 {

namespace {

// GMEM_MOVEABLE | GMEM_ZEROINIT | GMEM_SHARE: what a drop's receiver expects to free.
constexpr UINT kDropMemoryFlags = 8258;
// FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_FROM_SYSTEM.
constexpr DWORD kErrorTextFlags = 4864;
constexpr DWORD kDefaultLanguage = 1024;

class Win32Started : public StartedProcess {
public:
    explicit Win32Started(const PROCESS_INFORMATION& info) : info_(info) {}
    ~Win32Started() override {
        CloseHandle(info_.hThread);
        CloseHandle(info_.hProcess);
    }

    uint32_t Id() override { return info_.dwProcessId; }
    uint32_t Wait(uint32_t timeoutMs) override { return WaitForSingleObject(info_.hProcess, timeoutMs); }
    uint32_t WaitForIdle(uint32_t timeoutMs, uint32_t& error) override {
        DWORD result = WaitForInputIdle(info_.hProcess, timeoutMs);
        if (result == WAIT_FAILED) error = GetLastError();
        return result;
    }
    void Terminate(uint32_t exitCode) override { TerminateProcess(info_.hProcess, exitCode); }
    bool ExitCode(uint32_t& code, uint32_t& error) override {
        DWORD exitCode = 0;
        if (!GetExitCodeProcess(info_.hProcess, &exitCode)) {
            error = GetLastError();
            return false;
        }
        code = exitCode;
        return true;
    }

private:
    PROCESS_INFORMATION info_;
};

const wchar_t* OrNull(const std::wstring& text) {
    return text.empty() ? nullptr : text.c_str();
}

}  // namespace

std::unique_ptr<StartedProcess> Win32Processes::Start(const ProcessStart& start, uint32_t& error) {
    STARTUPINFOW startup{};
    startup.cb = sizeof(startup);
    if (start.useShowWindow) {
        startup.dwFlags = STARTF_USESHOWWINDOW;
        startup.wShowWindow = static_cast<WORD>(start.show);
    }
    // CreateProcessW may write into its command line.
    std::wstring commandLine = start.commandLine;
    PROCESS_INFORMATION info{};
    if (!CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, start.inheritHandles, start.creationFlags, nullptr,
                        OrNull(start.directory), &startup, &info)) {
        error = GetLastError();
        return nullptr;
    }
    return std::make_unique<Win32Started>(info);
}

WindowRef Win32Processes::FindVisibleWindow(uint32_t processId) {
    HWND window = nullptr;
    while ((window = FindWindowExW(nullptr, window, nullptr, nullptr))) {
        if (!IsWindowVisible(window)) continue;
        DWORD owner = 0;
        GetWindowThreadProcessId(window, &owner);
        if (owner == processId) return reinterpret_cast<WindowRef>(window);
    }
    return 0;
}

void Win32Processes::PostDropFiles(WindowRef window, const std::vector<uint8_t>& block) {
    HGLOBAL memory = GlobalAlloc(kDropMemoryFlags, block.size());
    if (!memory) return;
    if (void* data = GlobalLock(memory)) {
        std::memcpy(data, block.data(), block.size());
        GlobalUnlock(memory);
    }
    // The receiver frees the block by DragFinish; one that never arrives is ours to free.
    if (!PostMessageW(reinterpret_cast<HWND>(window), WM_DROPFILES, reinterpret_cast<WPARAM>(memory), 0))
        GlobalFree(memory);
}

void Win32Processes::ExecuteShell(const ShellRequest& request) {
    SHELLEXECUTEINFOW info{};
    info.cbSize = sizeof(info);
    info.fMask = request.mask;
    info.hwnd = reinterpret_cast<HWND>(request.owner);
    info.lpFile = request.file.c_str();
    info.lpParameters = request.parameters.c_str();
    info.lpDirectory = request.directory.c_str();
    info.nShow = request.show;
    ShellExecuteExW(&info);
}

uint64_t Win32Processes::Ticks() {
    return GetTickCount64();
}

namespace {

DWORD WINAPI RunThreadWork(void* parameter) {
    std::unique_ptr<std::function<uint32_t()>> work(static_cast<std::function<uint32_t()>*>(parameter));
    return (*work)();
}

}  // namespace

void Win32Processes::StartThread(std::function<uint32_t()> work, uint32_t stackBytes) {
    auto* owned = new std::function<uint32_t()>(std::move(work));
    HANDLE thread = CreateThread(nullptr, stackBytes, RunThreadWork, owned, 0, nullptr);
    if (!thread) {
        delete owned;
        return;
    }
    CloseHandle(thread);
}

void Win32Processes::Sleep(uint32_t milliseconds) {
    ::Sleep(milliseconds);
}

std::wstring Win32Processes::ErrorText(uint32_t error) {
    wchar_t* buffer = nullptr;
    DWORD length = FormatMessageW(kErrorTextFlags, nullptr, error, kDefaultLanguage,
                                  reinterpret_cast<wchar_t*>(&buffer), 0, nullptr);
    std::wstring text(buffer ? buffer : L"", length);
    if (buffer) LocalFree(buffer);
    return text;
}

}  // namespace platform::win32
