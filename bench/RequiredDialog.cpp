// A second floor of the dialog benchmark: what the option dialog cannot do without and nothing more.
// It imports the system libraries the option program needs and starts COM as it does, shows the option
// dialog's own template with its tree filled from the template's label texts, and opens the group pane
// with its read-only text in the frame, as the option dialog does when it opens on a group. No settings,
// no language library, no pages, no framework of ours.
#include <windows.h>
// after windows.h, which they need
#include <commctrl.h>
#include <objbase.h>
#include <oleauto.h>
#include <shlobj.h>

#include <string>

#include "resources/app/AppIds.h"

namespace {

INT_PTR CALLBACK PaneProc(HWND, UINT message, WPARAM, LPARAM) {
    return message == WM_INITDIALOG;
}

std::wstring ControlText(HWND dialog, int id) {
    wchar_t text[1024] = {};
    GetDlgItemTextW(dialog, id, text, 1024);
    return text;
}

HTREEITEM InsertItem(HWND tree, HTREEITEM parent, const std::wstring& label) {
    TVINSERTSTRUCTW insert{};
    insert.hParent = parent;
    insert.hInsertAfter = TVI_LAST;
    insert.item.mask = TVIF_TEXT;
    insert.item.pszText = const_cast<wchar_t*>(label.c_str());
    return reinterpret_cast<HTREEITEM>(SendMessageW(tree, TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insert)));
}

// Each label text is a group and its pages, separated by "/".
void FillTree(HWND dialog) {
    HWND tree = GetDlgItem(dialog, IDC_OPTION_TREE);
    HTREEITEM first = nullptr;
    for (int id = IDC_OPTION_LABELS_GENERAL; id <= IDC_OPTION_LABELS_OTHER; ++id) {
        const std::wstring labels = ControlText(dialog, id);
        HTREEITEM group = nullptr;
        for (size_t start = 0; start <= labels.size();) {
            size_t end = labels.find(L'/', start);
            if (end == std::wstring::npos) end = labels.size();
            const std::wstring label = labels.substr(start, end - start);
            if (!group)
                group = InsertItem(tree, TVI_ROOT, label);
            else
                InsertItem(tree, group, label);
            start = end + 1;
        }
        if (!first) first = group;
    }
    SendMessageW(tree, TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(first));
}

void OpenGroupPane(HWND dialog) {
    HWND pane = CreateDialogParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDD_OPTION_NONE), dialog, PaneProc, 0);
    SetDlgItemTextW(pane, IDC_OPTION_NONE_TEXT, ControlText(dialog, IDC_OPTION_GROUP_TEXT_APPEARANCE).c_str());
    RECT frame;
    GetWindowRect(GetDlgItem(dialog, IDC_OPTION_FRAME), &frame);
    MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&frame), 2);
    SetWindowPos(pane, nullptr, frame.left, frame.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    ShowWindow(pane, SW_SHOW);
}

INT_PTR CALLBACK RequiredDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
    if (message == WM_INITDIALOG) {
        FillTree(dialog);
        OpenGroupPane(dialog);
        SetFocus(GetDlgItem(dialog, IDC_OPTION_TREE));
        return FALSE;
    }
    if (message == WM_COMMAND && (LOWORD(wParam) == IDCANCEL || LOWORD(wParam) == IDOK)) {
        EndDialog(dialog, 0);
        return TRUE;
    }
    return FALSE;
}

// One call into each library the option program imports, so that this program loads them all.
void TouchLibraries() {
    wchar_t path[MAX_PATH];
    SHGetSpecialFolderPathW(nullptr, path, CSIDL_LOCAL_APPDATA, FALSE);
    VARIANT variant;
    VariantInit(&variant);
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, L"Software", 0, KEY_READ, &key) == ERROR_SUCCESS) RegCloseKey(key);
    GetFileVersionInfoSizeW(path, nullptr);
    GetStockObject(DEFAULT_GUI_FONT);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, wchar_t*, int) {
    INITCOMMONCONTROLSEX controls = {sizeof(controls), ICC_WIN95_CLASSES};
    InitCommonControlsEx(&controls);
    const HRESULT com = CoInitialize(nullptr);
    TouchLibraries();
    const INT_PTR result = DialogBoxParamW(instance, MAKEINTRESOURCEW(IDD_OPTION), nullptr, RequiredDialogProc, 0);
    if (SUCCEEDED(com)) CoUninitialize();
    return static_cast<int>(result);
}
