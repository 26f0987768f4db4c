#include "OptionWindow.h"

#include <string>

namespace e2e {

namespace {

struct Search {
    DWORD process;
    HWND found = nullptr;
};

BOOL CALLBACK Visit(HWND window, LPARAM data) {
    auto* search = reinterpret_cast<Search*>(data);
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    if (owner != search->process || !IsWindowVisible(window)) return TRUE;
    wchar_t title[64] = {};
    GetWindowTextW(window, title, 64);
    if (std::wstring(title) != L"オプション") return TRUE;
    search->found = window;
    return FALSE;
}

}  // namespace

HWND FindOptionDialog(DWORD processId, DWORD timeoutMs) {
    for (DWORD waited = 0; waited < timeoutMs; waited += 50) {
        Search search{processId};
        EnumWindows(Visit, reinterpret_cast<LPARAM>(&search));
        if (search.found) return search.found;
        Sleep(50);
    }
    return nullptr;
}

}  // namespace e2e
