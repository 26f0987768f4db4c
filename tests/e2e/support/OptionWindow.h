// The windows of a running Option.exe as another process finds and works them.
#pragma once

#include <windows.h>

#include <functional>
#include <string>

namespace e2e {

// The first top-level window of the process that match accepts; null when none comes in time.
HWND FindWindowOf(DWORD processId, const std::function<bool(HWND)>& match, DWORD timeoutMs = 10000, DWORD pollMs = 50);
// The visible top-level window titled title that the process shows.
HWND FindVisibleWindow(DWORD processId, const wchar_t* title, DWORD timeoutMs = 10000, DWORD pollMs = 50);
// The page that holds a control: the one shown when several hold it.
HWND PageWith(HWND dialog, int controlId);

// Presses a button of a window as the user would, and waits until the window has handled it.
void Click(HWND window, int id);
// A control's text, asked of the control itself: GetWindowText does not ask another process's controls.
std::wstring Text(HWND control);
void SetText(HWND dialog, int id, const wchar_t* text);
void SetCheck(HWND dialog, int id, bool on);

// All static texts of a dialog, joined: a message box's text is one of them.
std::wstring DialogText(HWND dialog);
// A visible message box of the process (a dialog without a tree) once its text is in.
HWND FindMessageBox(DWORD processId, DWORD timeoutMs = 10000);
// The visible folder browser of the process (a dialog holding a tree).
HWND FindFolderBrowser(DWORD processId, DWORD timeoutMs = 10000);
// Answers a dialog with a button and waits until it is gone.
bool Answer(HWND dialog, int button, DWORD timeoutMs = 10000);

// The item goes through memory of its own: process needs PROCESS_VM_OPERATION and PROCESS_VM_WRITE.
bool SelectListRow(HANDLE process, HWND list, int row);
// Selects a folder in the browser of process by its path; process needs PROCESS_VM_OPERATION and PROCESS_VM_WRITE.
bool SelectFolder(HANDLE process, HWND browser, const std::wstring& path);

}  // namespace e2e
