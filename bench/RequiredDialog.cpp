// A second floor of the dialog benchmark: what the option dialog cannot do without and nothing more.
// It imports the system libraries the option program needs and starts COM as it does, shows the option
// dialog's own template with its tree filled from the template's label texts, and opens the group pane
// with its read-only text in the frame, as the option dialog does when it opens on a group. No settings,
// no language library, no framework of ours. A tree item selected shows its page's template bare, made
// at its first selection like a page of the option dialog, so that each page's switch can be set
// against what the same template costs with nothing of ours in it.
#include <windows.h>
// after windows.h, which they need
#include <commctrl.h>
#include <objbase.h>
#include <oleauto.h>
#include <shlobj.h>

#include <map>
#include <string>
#include <vector>

#include "app/OptionPageTable.h"
#include "resources/app/AppIds.h"
#include "services/Tokenizer.h"

namespace {

std::map<int, HWND> g_pages;
HWND g_pane = nullptr;
HWND g_shown = nullptr;

INT_PTR CALLBACK PaneProc(HWND, UINT message, WPARAM, LPARAM) {
    return message == WM_INITDIALOG;
}

std::wstring ControlText(HWND dialog, int id) {
    wchar_t text[1024] = {};
    GetDlgItemTextW(dialog, id, text, 1024);
    return text;
}

HTREEITEM InsertItem(HWND tree, HTREEITEM parent, const OptionTreeItem& item) {
    TVINSERTSTRUCTW insert{};
    insert.hParent = parent;
    insert.hInsertAfter = TVI_LAST;
    insert.item.mask = TVIF_TEXT | TVIF_PARAM;
    insert.item.pszText = const_cast<wchar_t*>(item.label.c_str());
    insert.item.lParam = item.id;
    return reinterpret_cast<HTREEITEM>(SendMessageW(tree, TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insert)));
}

// The same tree as the option dialog's: each label text lists a group and its pages, separated by "/".
void FillTree(HWND dialog) {
    HWND tree = GetDlgItem(dialog, IDC_OPTION_TREE);
    std::vector<OptionTreeItem> items;
    std::vector<HTREEITEM> handles;
    for (int list = kFirstLabelList; list <= kLastLabelList; ++list) {
        std::vector<std::wstring> labels;
        Tokenize(labels, ControlText(dialog, list), L'/', false, true);
        const size_t first = items.size();
        AddTreeItems(list, labels, items);
        for (size_t i = first; i < items.size(); ++i)
            handles.push_back(InsertItem(tree, items[i].parent < 0 ? TVI_ROOT : handles[items[i].parent], items[i]));
    }
    if (!handles.empty()) SendMessageW(tree, TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(handles.front()));
}

// Makes a pane from a template and puts it in the frame, hidden.
HWND MakePane(HWND dialog, int templateId) {
    HWND pane = CreateDialogParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(templateId), dialog, PaneProc, 0);
    if (!pane) return nullptr;
    RECT frame;
    GetWindowRect(GetDlgItem(dialog, IDC_OPTION_FRAME), &frame);
    MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&frame), 2);
    MoveWindow(pane, frame.left, frame.top, frame.right - frame.left, frame.bottom - frame.top, TRUE);
    return pane;
}

void Show(HWND pane) {
    if (g_shown) ShowWindow(g_shown, SW_HIDE);
    g_shown = pane;
    ShowWindow(pane, SW_SHOW);
}

void OpenGroupPane(HWND dialog) {
    g_pane = MakePane(dialog, IDD_OPTION_NONE);
    SetDlgItemTextW(g_pane, IDC_OPTION_NONE_TEXT, ControlText(dialog, IDC_OPTION_GROUP_TEXT_APPEARANCE).c_str());
    Show(g_pane);
}

// The selected item's page, made at its first selection; a group shows the group pane.
void SwitchPage(HWND dialog, int id) {
    for (const OptionTreeRow& row : OptionTreeRows()) {
        if (row.id != id || !IsPageId(id)) continue;
        HWND& page = g_pages[id];
        if (!page) page = MakePane(dialog, row.templateId);
        if (page) Show(page);
        return;
    }
    Show(g_pane);
}

INT_PTR CALLBACK RequiredDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        FillTree(dialog);
        OpenGroupPane(dialog);
        SetFocus(GetDlgItem(dialog, IDC_OPTION_TREE));
        return FALSE;
    }
    if (message == WM_NOTIFY) {
        const auto* change = reinterpret_cast<const NMTREEVIEWW*>(lParam);
        if (change->hdr.idFrom == IDC_OPTION_TREE && change->hdr.code == TVN_SELCHANGEDW && g_pane)
            SwitchPage(dialog, static_cast<int>(change->itemNew.lParam));
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
