#include "platform/win32/Win32Prompts.h"

#include <windows.h>

#include "platform/win32/Win32Environment.h"

namespace platform::win32 {

int Win32Prompts::ShowMessage(const std::wstring& text, unsigned style) {
    // Like the framework's message box: owned by the active window, captioned with the program's name.
    HWND owner = GetActiveWindow();
    std::wstring caption = ProgramName();
    return MessageBoxW(owner, text.c_str(), caption.c_str(), style | MB_TASKMODAL);
}

} // namespace platform::win32
