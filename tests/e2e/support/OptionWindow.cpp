#include "OptionWindow.h"

#include <commctrl.h>
#include <shlobj.h>

namespace e2e {

namespace {

struct Search {
    DWORD process;
    const std::function<bool(HWND)>& match;
    HWND found = nullptr;
};

BOOL CALLBACK Visit(HWND window, LPARAM data) {
    auto* search = reinterpret_cast<Search*>(data);
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    if (owner != search->process || !search->match(window)) return TRUE;
    search->found = window;
    return FALSE;
}

bool IsVisibleDialog(HWND window, bool withTree) {
    wchar_t name[16] = {};
    GetClassNameW(window, name, 16);
    return IsWindowVisible(window) && std::wstring(name) == L"#32770" &&
           (FindWindowExW(window, nullptr, L"SysTreeView32", nullptr) != nullptr) == withTree;
}

// Selects until the tree shows name as the selection: the browser may still be filling its tree.
bool SendSelection(HANDLE process, HWND browser, BOOL isPath, const void* data, size_t size, const std::wstring& name) {
    constexpr int kChars = 260;
    const size_t itemAt = (size + 15) / 16 * 16, textAt = itemAt + sizeof(TVITEMW);
    auto* remote = static_cast<char*>(
        VirtualAllocEx(process, nullptr, textAt + kChars * sizeof(wchar_t), MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE));
    HWND tree = FindWindowExW(browser, nullptr, L"SysTreeView32", nullptr);
    bool selected = false;
    for (DWORD waited = 0; remote && !selected && waited < 10000; waited += 100) {
        if (waited > 0) Sleep(100);
        if (!WriteProcessMemory(process, remote, data, size, nullptr)) break;
        SendMessageW(browser, BFFM_SETSELECTIONW, isPath, reinterpret_cast<LPARAM>(remote));
        TVITEMW query = {};
        query.mask = TVIF_TEXT;
        query.hItem = reinterpret_cast<HTREEITEM>(SendMessageW(tree, TVM_GETNEXTITEM, TVGN_CARET, 0));
        query.pszText = reinterpret_cast<wchar_t*>(remote + textAt);
        query.cchTextMax = kChars;
        wchar_t text[kChars] = {};
        selected = query.hItem && WriteProcessMemory(process, remote + itemAt, &query, sizeof query, nullptr) &&
                   SendMessageW(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(remote + itemAt)) &&
                   ReadProcessMemory(process, remote + textAt, text, sizeof text - sizeof(wchar_t), nullptr) &&
                   name == text;
    }
    if (remote) VirtualFreeEx(process, remote, 0, MEM_RELEASE);
    return selected;
}

}  // namespace

HWND FindWindowOf(DWORD processId, const std::function<bool(HWND)>& match, DWORD timeoutMs, DWORD pollMs) {
    const DWORD start = GetTickCount();
    for (;;) {
        Search search{processId, match};
        EnumWindows(Visit, reinterpret_cast<LPARAM>(&search));
        if (search.found) return search.found;
        if (GetTickCount() - start >= timeoutMs) return nullptr;
        Sleep(pollMs);
    }
}

HWND FindVisibleWindow(DWORD processId, const wchar_t* title, DWORD timeoutMs, DWORD pollMs) {
    auto titled = [title](HWND window) {
        wchar_t text[64] = {};
        GetWindowTextW(window, text, 64);
        return IsWindowVisible(window) && std::wstring(text) == title;
    };
    return FindWindowOf(processId, titled, timeoutMs, pollMs);
}

HWND PageWith(HWND dialog, int controlId) {
    HWND hidden = nullptr;
    for (HWND child = FindWindowExW(dialog, nullptr, nullptr, nullptr); child;
         child = FindWindowExW(dialog, child, nullptr, nullptr)) {
        if (!GetDlgItem(child, controlId)) continue;
        if (IsWindowVisible(child)) return child;
        if (!hidden) hidden = child;
    }
    return hidden;
}

void Click(HWND window, int id) {
    SendMessageW(window, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), 0);
}

std::wstring Text(HWND control) {
    wchar_t text[512] = {};
    SendMessageW(control, WM_GETTEXT, 512, reinterpret_cast<LPARAM>(text));
    return text;
}

void SetText(HWND dialog, int id, const wchar_t* text) {
    SendMessageW(GetDlgItem(dialog, id), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text));
}

void SetCheck(HWND dialog, int id, bool on) {
    SendMessageW(GetDlgItem(dialog, id), BM_SETCHECK, on ? BST_CHECKED : BST_UNCHECKED, 0);
}

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
    return FindWindowOf(
        processId, [](HWND window) { return IsVisibleDialog(window, false) && !DialogText(window).empty(); },
        timeoutMs);
}

HWND FindFolderBrowser(DWORD processId, DWORD timeoutMs) {
    return FindWindowOf(
        processId, [](HWND window) { return IsVisibleDialog(window, true); }, timeoutMs);
}

bool Answer(HWND dialog, int button, DWORD timeoutMs) {
    PostMessageW(dialog, WM_COMMAND, button, 0);
    for (DWORD waited = 0; waited < timeoutMs; waited += 20) {
        if (!IsWindow(dialog)) return true;
        Sleep(20);
    }
    return false;
}

bool SelectListRow(HANDLE process, HWND list, int row) {
    LVITEMW item{};
    item.stateMask = item.state = LVIS_SELECTED | LVIS_FOCUSED;
    void* remote = VirtualAllocEx(process, nullptr, sizeof item, MEM_COMMIT, PAGE_READWRITE);
    if (!remote) return false;
    const bool done = WriteProcessMemory(process, remote, &item, sizeof item, nullptr) &&
                      SendMessageW(list, LVM_SETITEMSTATE, row, reinterpret_cast<LPARAM>(remote));
    VirtualFreeEx(process, remote, 0, MEM_RELEASE);
    return done;
}

bool SelectFolder(HANDLE process, HWND browser, const std::wstring& path) {
    std::wstring name = path.substr(path.find_last_of(L'\\') + 1);
    return SendSelection(process, browser, TRUE, path.c_str(), (path.size() + 1) * sizeof(wchar_t), name);
}

}  // namespace e2e
