#include "platform/win32/Win32HostWindows.h"

#include <windows.h>

namespace platform::win32 {

WindowRef Win32HostWindows::FindHostWindow() {
    return reinterpret_cast<WindowRef>(FindWindowW(kHostClassName, nullptr));
}

void Win32HostWindows::SetForeground(WindowRef window) {
    SetForegroundWindow(reinterpret_cast<HWND>(window));
}

}  // namespace platform::win32
