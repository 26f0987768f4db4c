#include "platform/win32/Win32Prompts.h"

#include <windows.h>

#include "platform/win32/Win32Environment.h"

namespace platform::win32 {

int Win32Prompts::ShowMessage(const std::wstring& text, unsigned style) {
    // Like the framework's message box: captioned with the program's name.
    return Ask(text, ProgramName(), style);
}

int Win32Prompts::Ask(const std::wstring& text, const std::wstring& caption, unsigned style) {
    return MessageBoxW(GetActiveWindow(), text.c_str(), caption.c_str(), style);
}

}  // namespace platform::win32
