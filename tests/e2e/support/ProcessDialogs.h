// The message boxes and the folder browser of a running Option.exe, as another process finds and
// works them.
#pragma once

#include <windows.h>

#include <string>

namespace e2e {

// All static texts of a dialog, joined: a message box's text is one of them.
std::wstring DialogText(HWND dialog);

// A visible message box of the process (a dialog without a tree) once its text is in; null on time-out.
HWND FindMessageBox(DWORD processId, DWORD timeoutMs = 10000);
// The visible folder browser of the process (a dialog holding a tree); null on time-out.
HWND FindFolderBrowser(DWORD processId, DWORD timeoutMs = 10000);

// Answers a dialog with a button and waits until it is gone.
bool Answer(HWND dialog, int button, DWORD timeoutMs = 10000);

// Selects a folder in the browser of process by its path, or "My Computer", which has none.
// process needs PROCESS_VM_OPERATION and PROCESS_VM_WRITE.
bool SelectFolder(HANDLE process, HWND browser, const std::wstring& path);
bool SelectMyComputer(HANDLE process, HWND browser);

}  // namespace e2e
