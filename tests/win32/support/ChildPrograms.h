// The small programs built beside the end-to-end tests, as in-process tests start them.
#pragma once

#include <windows.h>

#include <string>

#include "e2e/support/FakeHostProcess.h"
#include "e2e/support/Files.h"
#include "win32/support/RealHostPlatform.h"

namespace testing_support {

using e2e::Utf8;

// The window class of DropTarget.exe.
constexpr wchar_t kDropTargetClass[] = L"OptionTests.DropTarget";

inline std::wstring HelperPath(const wchar_t* name) {
    return testing_support::TestDirectory() + L"\\e2e\\" + name;
}

inline std::wstring TempLog(const wchar_t* name) {
    wchar_t directory[MAX_PATH];
    GetTempPathW(MAX_PATH, directory);
    std::wstring path = std::wstring(directory) + name;
    DeleteFileW(path.c_str());
    return path;
}

// Waits for a line that starts with prefix; gives the whole line, or an empty one on time-out.
inline std::string WaitForLine(const std::wstring& log, const std::string& prefix, DWORD timeoutMs = 10000) {
    DWORD start = GetTickCount();
    do {
        for (const std::string& line : e2e::ReadLogLines(log))
            if (line.starts_with(prefix)) return line;
        PumpMessages(20);
    } while (GetTickCount() - start < timeoutMs);
    return {};
}

inline void CloseDropTargets() {
    while (HWND window = FindWindowW(kDropTargetClass, nullptr)) {
        DWORD id = 0;
        GetWindowThreadProcessId(window, &id);
        HANDLE process = OpenProcess(SYNCHRONIZE, FALSE, id);
        PostMessageW(window, WM_CLOSE, 0, 0);
        if (process) {
            WaitForSingleObject(process, 5000);
            CloseHandle(process);
        }
    }
}

}  // namespace testing_support
