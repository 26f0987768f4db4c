// Tree item handles are plain values, so working the tree needs no memory in the other process.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <vector>

#include "app/OptionPageTable.h"

namespace e2e {

constexpr int kOptionTreeId = 1621;

inline HTREEITEM NextTreeItem(HWND tree, HTREEITEM item, UINT how) {
    return reinterpret_cast<HTREEITEM>(SendMessageW(tree, TVM_GETNEXTITEM, how, reinterpret_cast<LPARAM>(item)));
}

// Every item from first on in the order the tree shows them, parents before children; expands each on the way.
inline std::vector<HTREEITEM> ExpandAllTreeItems(HWND tree, HTREEITEM first = nullptr) {
    std::vector<HTREEITEM> items;
    for (HTREEITEM item = first ? first : NextTreeItem(tree, nullptr, TVGN_ROOT); item;
         item = NextTreeItem(tree, item, TVGN_NEXT)) {
        items.push_back(item);
        SendMessageW(tree, TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(item));
        if (HTREEITEM child = NextTreeItem(tree, item, TVGN_CHILD)) {
            const std::vector<HTREEITEM> below = ExpandAllTreeItems(tree, child);
            items.insert(items.end(), below.begin(), below.end());
        }
    }
    return items;
}

// Selects the item of a page or group id, as a click on it would; false when the tree has none.
inline bool SelectTreeItem(HWND dialog, int id) {
    HWND tree = GetDlgItem(dialog, kOptionTreeId);
    const auto rows = OptionTreeRows();
    const std::vector<HTREEITEM> items = ExpandAllTreeItems(tree);
    for (size_t i = 0; i < rows.size() && i < items.size(); ++i) {
        if (rows[i].id == id) return SendMessageW(tree, TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(items[i]));
    }
    return false;
}

// Returns once the dialog's thread has handled what it was sent, painted what it must and waits for input again.
inline void WaitUntilDialogIdle(HWND dialog, HANDLE process, DWORD timeoutMs = 10000) {
    DWORD_PTR result = 0;
    SendMessageTimeoutW(dialog, WM_NULL, 0, 0, SMTO_BLOCK, timeoutMs, &result);
    RedrawWindow(dialog, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    WaitForInputIdle(process, timeoutMs);
}

}  // namespace e2e
