// The option dialog of a running Option.exe, as another process finds and works it.
#pragma once

#include <windows.h>

namespace e2e {

// The visible top-level window titled title that the process shows; null when none appears in time.
HWND FindVisibleWindow(DWORD processId, const wchar_t* title, DWORD timeoutMs = 10000, DWORD pollMs = 50);
// The visible top-level dialog titled "オプション" that the process shows; null when none appears in
// time.
HWND FindOptionDialog(DWORD processId, DWORD timeoutMs = 10000);
// The page of the dialog that holds a control, found among the dialog's child windows.
HWND PageWith(HWND dialog, int controlId);

}  // namespace e2e
