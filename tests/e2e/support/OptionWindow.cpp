#include "OptionWindow.h"

#include <commctrl.h>
#include <shlobj.h>

#include <vector>

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

// Memory in another process, for messages whose arguments point into the receiver's address space.
class RemoteBuffer {
public:
    RemoteBuffer(HANDLE process, size_t size)
        : process_(process), data_(VirtualAllocEx(process, nullptr, size, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE)) {}
    ~RemoteBuffer() {
        if (data_) VirtualFreeEx(process_, data_, 0, MEM_RELEASE);
    }
    RemoteBuffer(const RemoteBuffer&) = delete;
    RemoteBuffer& operator=(const RemoteBuffer&) = delete;

    void* get() const { return data_; }
    bool Write(const void* data, size_t size, size_t offset = 0) const {
        return data_ && WriteProcessMemory(process_, static_cast<char*>(data_) + offset, data, size, nullptr);
    }
    bool Read(void* data, size_t size, size_t offset = 0) const {
        return data_ && ReadProcessMemory(process_, static_cast<char*>(data_) + offset, data, size, nullptr);
    }

private:
    HANDLE process_;
    void* data_;
};

// The text of the tree item the browser has selected.
std::wstring SelectedName(HANDLE process, HWND browser) {
    HWND tree = FindWindowExW(browser, nullptr, L"SysTreeView32", nullptr);
    auto item = reinterpret_cast<HTREEITEM>(SendMessageW(tree, TVM_GETNEXTITEM, TVGN_CARET, 0));
    if (!item) return L"";
    constexpr int kChars = 260;
    RemoteBuffer remote(process, sizeof(TVITEMW) + kChars * sizeof(wchar_t));
    TVITEMW query = {};
    query.mask = TVIF_TEXT;
    query.hItem = item;
    query.pszText = reinterpret_cast<wchar_t*>(static_cast<char*>(remote.get()) + sizeof(TVITEMW));
    query.cchTextMax = kChars;
    wchar_t text[kChars] = {};
    if (!remote.Write(&query, sizeof query) ||
        !SendMessageW(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(remote.get())) ||
        !remote.Read(text, sizeof text, sizeof(TVITEMW))) {
        return L"";
    }
    text[kChars - 1] = 0;
    return text;
}

// Selects until the tree shows name as its selection: the browser may still be filling its tree.
bool SendSelection(HANDLE process, HWND browser, BOOL isPath, const void* data, size_t size, const std::wstring& name) {
    RemoteBuffer remote(process, size);
    if (!remote.Write(data, size)) return false;
    for (DWORD waited = 0; waited < 10000; waited += 100) {
        SendMessageW(browser, BFFM_SETSELECTIONW, isPath, reinterpret_cast<LPARAM>(remote.get()));
        if (SelectedName(process, browser) == name) return true;
        Sleep(100);
    }
    return false;
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
    for (HWND child = FindWindowExW(dialog, nullptr, nullptr, nullptr); child;
         child = FindWindowExW(dialog, child, nullptr, nullptr)) {
        if (GetDlgItem(child, controlId)) return child;
    }
    return nullptr;
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

bool SelectFolder(HANDLE process, HWND browser, const std::wstring& path) {
    std::wstring name = path.substr(path.find_last_of(L'\\') + 1);
    return SendSelection(process, browser, TRUE, path.c_str(), (path.size() + 1) * sizeof(wchar_t), name);
}

bool SelectMyComputer(HANDLE process, HWND browser) {
    PIDLIST_ABSOLUTE computer = nullptr;
    if (FAILED(SHGetSpecialFolderLocation(nullptr, CSIDL_DRIVES, &computer))) return false;
    SHFILEINFOW info = {};
    SHGetFileInfoW(reinterpret_cast<const wchar_t*>(computer), 0, &info, sizeof info, SHGFI_PIDL | SHGFI_DISPLAYNAME);
    bool sent = SendSelection(process, browser, FALSE, computer, ILGetSize(computer), info.szDisplayName);
    CoTaskMemFree(computer);
    return sent;
}

}  // namespace e2e
