// The small programs built beside the end-to-end tests, as in-process tests start them: where they
// are, the logs they write, and closing the windows they leave open.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "win32/support/RealHostPlatform.h"

namespace testing_support {

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

inline std::vector<std::string> ReadLines(const std::wstring& path) {
    std::vector<std::string> lines;
    HANDLE file = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                              nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return lines;
    std::string text(1 << 16, '\0');
    DWORD read = 0;
    ReadFile(file, text.data(), static_cast<DWORD>(text.size()), &read, nullptr);
    CloseHandle(file);
    text.resize(read);
    for (size_t start = 0, end; (end = text.find('\n', start)) != std::string::npos; start = end + 1)
        lines.push_back(text.substr(start, end - start));
    return lines;
}

inline std::string Utf8(const std::wstring& text) {
    int size = WideCharToMultiByte(CP_UTF8, 0, text.c_str(), -1, nullptr, 0, nullptr, nullptr);
    std::string out(size - 1, '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.c_str(), -1, out.data(), size, nullptr, nullptr);
    return out;
}

// Waits for a line that starts with prefix; gives the whole line, or an empty one on time-out.
inline std::string WaitForLine(const std::wstring& log, const std::string& prefix, DWORD timeoutMs = 10000) {
    DWORD start = GetTickCount();
    do {
        for (const std::string& line : ReadLines(log))
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
