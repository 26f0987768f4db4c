#include "ProcessDialogs.h"

#include <shlobj.h>

#include <vector>

namespace e2e {

namespace {

struct Search {
    DWORD process;
    bool wantTree;
    HWND found = nullptr;
};

BOOL CALLBACK Visit(HWND window, LPARAM data) {
    auto* search = reinterpret_cast<Search*>(data);
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    wchar_t name[16] = {};
    GetClassNameW(window, name, 16);
    if (owner != search->process || !IsWindowVisible(window) || std::wstring(name) != L"#32770") return TRUE;
    bool hasTree = FindWindowExW(window, nullptr, L"SysTreeView32", nullptr) != nullptr;
    if (hasTree != search->wantTree) return TRUE;
    search->found = window;
    return FALSE;
}

HWND FindDialog(DWORD processId, bool wantTree, bool wantText, DWORD timeoutMs) {
    const DWORD start = GetTickCount();
    for (;;) {
        Search search{processId, wantTree};
        EnumWindows(Visit, reinterpret_cast<LPARAM>(&search));
        if (search.found && (!wantText || !DialogText(search.found).empty())) return search.found;
        if (GetTickCount() - start >= timeoutMs) return nullptr;
        Sleep(50);
    }
}

// The selection message takes its argument in the browser's own address space.
bool SendSelection(HANDLE process, HWND browser, BOOL isPath, const void* data, size_t size) {
    void* remote = VirtualAllocEx(process, nullptr, size, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
    if (!remote) return false;
    bool written = WriteProcessMemory(process, remote, data, size, nullptr);
    if (written) SendMessageW(browser, BFFM_SETSELECTIONW, isPath, reinterpret_cast<LPARAM>(remote));
    VirtualFreeEx(process, remote, 0, MEM_RELEASE);
    return written;
}

}  // namespace

std::wstring DialogText(HWND dialog) {
    std::wstring text;
    for (HWND child = FindWindowExW(dialog, nullptr, L"Static", nullptr); child;
         child = FindWindowExW(dialog, child, L"Static", nullptr)) {
        wchar_t buffer[1024] = {};
        GetWindowTextW(child, buffer, 1024);
        text += buffer;
    }
    return text;
}

HWND FindMessageBox(DWORD processId, DWORD timeoutMs) {
    return FindDialog(processId, false, true, timeoutMs);
}

HWND FindFolderBrowser(DWORD processId, DWORD timeoutMs) {
    return FindDialog(processId, true, false, timeoutMs);
}

bool Answer(HWND dialog, int button, DWORD timeoutMs) {
    PostMessageW(dialog, WM_COMMAND, button, 0);
    for (DWORD waited = 0; waited < timeoutMs; waited += 20) {
        if (!IsWindow(dialog)) return true;
        Sleep(20);
    }
    return false;
}

bool SelectFolder(HANDLE process, HWND browser, const std::wstring& path) {
    return SendSelection(process, browser, TRUE, path.c_str(), (path.size() + 1) * sizeof(wchar_t));
}

bool SelectMyComputer(HANDLE process, HWND browser) {
    PIDLIST_ABSOLUTE computer = nullptr;
    if (FAILED(SHGetSpecialFolderLocation(nullptr, CSIDL_DRIVES, &computer))) return false;
    bool sent = SendSelection(process, browser, FALSE, computer, ILGetSize(computer));
    CoTaskMemFree(computer);
    return sent;
}

}  // namespace e2e
