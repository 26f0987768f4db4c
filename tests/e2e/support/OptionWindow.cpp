#include "OptionWindow.h"

#include <string>

namespace e2e {

namespace {

struct Search {
    DWORD process;
    const wchar_t* title;
    HWND found = nullptr;
};

BOOL CALLBACK Visit(HWND window, LPARAM data) {
    auto* search = reinterpret_cast<Search*>(data);
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    if (owner != search->process || !IsWindowVisible(window)) return TRUE;
    wchar_t title[64] = {};
    GetWindowTextW(window, title, 64);
    if (std::wstring(title) != search->title) return TRUE;
    search->found = window;
    return FALSE;
}

}  // namespace

HWND FindVisibleWindow(DWORD processId, const wchar_t* title, DWORD timeoutMs, DWORD pollMs) {
    const DWORD start = GetTickCount();
    for (;;) {
        Search search{processId, title};
        EnumWindows(Visit, reinterpret_cast<LPARAM>(&search));
        if (search.found) return search.found;
        if (GetTickCount() - start >= timeoutMs) return nullptr;
        Sleep(pollMs);
    }
}

HWND FindOptionDialog(DWORD processId, DWORD timeoutMs) {
    return FindVisibleWindow(processId, L"オプション", timeoutMs);
}

HWND PageWith(HWND dialog, int controlId) {
    for (HWND child = FindWindowExW(dialog, nullptr, nullptr, nullptr); child;
         child = FindWindowExW(dialog, child, nullptr, nullptr)) {
        if (GetDlgItem(child, controlId)) return child;
    }
    return nullptr;
}

}  // namespace e2e
