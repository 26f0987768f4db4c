#include "platform/win32/Win32HostWindows.h"

#include <windows.h>

#include <algorithm>
#include <cstring>

namespace platform::win32 {

namespace {

HWND Handle(WindowRef window) {
    return reinterpret_cast<HWND>(window);
}

// Each thread has its own main window, as the framework's threads do: a launch thread has none.
thread_local WindowRef mainWindow = 0;

}  // namespace

WindowRef Win32HostWindows::FindHostWindow() {
    return reinterpret_cast<WindowRef>(FindWindowW(kHostClassName, nullptr));
}

WindowRef Win32HostWindows::FindWindowByTitle(const std::wstring& title) {
    return reinterpret_cast<WindowRef>(FindWindowW(nullptr, title.c_str()));
}

std::vector<WindowRef> Win32HostWindows::AllHostWindows() {
    std::vector<WindowRef> windows;
    HWND window = nullptr;
    while ((window = FindWindowExW(nullptr, window, kHostClassName, nullptr)))
        windows.push_back(reinterpret_cast<WindowRef>(window));
    return windows;
}

void Win32HostWindows::SetForeground(WindowRef window) {
    SetForegroundWindow(Handle(window));
}

void Win32HostWindows::ForceForeground(WindowRef window) {
    HWND foreground = GetForegroundWindow();
    if (!foreground) {
        SetForegroundWindow(Handle(window));
        return;
    }
    // The system lets the thread that owns the foreground hand it on; joined to its input we are
    // that thread for a moment, and with the lock time-out at zero nothing holds the change back.
    DWORD self = GetCurrentThreadId();
    DWORD owner = GetWindowThreadProcessId(foreground, nullptr);
    AttachThreadInput(self, owner, TRUE);
    DWORD lockTimeout = 0;
    SystemParametersInfoW(SPI_GETFOREGROUNDLOCKTIMEOUT, 0, &lockTimeout, 0);
    SystemParametersInfoW(SPI_SETFOREGROUNDLOCKTIMEOUT, 0, nullptr, 0);
    SetForegroundWindow(Handle(window));
    SystemParametersInfoW(SPI_SETFOREGROUNDLOCKTIMEOUT, 0, reinterpret_cast<void*>(static_cast<uintptr_t>(lockTimeout)),
                          0);
    AttachThreadInput(self, owner, FALSE);
}

void Win32HostWindows::SendCommand(WindowRef window, uint16_t id) {
    SendMessageW(Handle(window), WM_COMMAND, id, 0);
}

bool Win32HostWindows::IsWindow(WindowRef window) {
    return ::IsWindow(Handle(window)) != FALSE;
}

void Win32HostWindows::PostWindowMessage(WindowRef window, uint32_t message, uintptr_t wParam, intptr_t lParam) {
    PostMessageW(Handle(window), message, wParam, lParam);
}

intptr_t Win32HostWindows::SendWindowMessage(WindowRef window, uint32_t message, uintptr_t wParam, intptr_t lParam) {
    return SendMessageW(Handle(window), message, wParam, lParam);
}

void Win32HostWindows::SendCopyData(WindowRef window, WindowRef sender, uint32_t code, const std::wstring& text,
                                    uint32_t cbData) {
    // The size the host is told is longer than the text; the system copies that many bytes, so
    // they must exist, and zeros keep the text's end where it is.
    std::vector<uint8_t> data(std::max<size_t>(cbData, (text.size() + 1) * sizeof(wchar_t)), 0);
    std::memcpy(data.data(), text.c_str(), text.size() * sizeof(wchar_t));
    COPYDATASTRUCT copy{code, cbData, data.data()};
    SendMessageW(Handle(window), WM_COPYDATA, static_cast<WPARAM>(sender), reinterpret_cast<LPARAM>(&copy));
}

bool Win32HostWindows::IsKeyDown(int virtualKey) {
    return GetKeyState(virtualKey) < 0;
}

WindowRef Win32HostWindows::MainWindow() {
    return mainWindow;
}

void Win32HostWindows::SetMainWindow(WindowRef window) {
    mainWindow = window;
}

}  // namespace platform::win32
