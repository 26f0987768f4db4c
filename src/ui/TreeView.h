// A borrowed tree-view control. Item handles are null when there is no such item.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <string>

#include "ui/Control.h"

namespace ui {

class TreeView : public Control {
public:
    using Control::Control;

    // A new item with its item data, under parent (TVI_ROOT at the top) after after (TVI_LAST: as the last child).
    HTREEITEM InsertItem(const std::wstring& text, LPARAM data, HTREEITEM parent = TVI_ROOT,
                         HTREEITEM after = TVI_LAST) const;
    // The same as the last child of parent, with a picture of the image list, shown selected or not.
    HTREEITEM InsertItem(const std::wstring& text, LPARAM data, int image, HTREEITEM parent) const;
    void SetImageList(HIMAGELIST images) const {
        Send(TVM_SETIMAGELIST, TVSIL_NORMAL, reinterpret_cast<LPARAM>(images));
    }
    void SetItemImage(HTREEITEM item, int image) const;
    bool EnsureVisible(HTREEITEM item) const {
        return Send(TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(item)) != FALSE;
    }
    bool DeleteItem(HTREEITEM item) const { return Send(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(item)) != FALSE; }
    void DeleteAllItems() const { Send(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT)); }
    int GetCount() const { return static_cast<int>(Send(TVM_GETCOUNT)); }

    // TVGN_ROOT, TVGN_CHILD, TVGN_NEXT, TVGN_PARENT, TVGN_CARET, ...
    HTREEITEM GetNextItem(HTREEITEM item, UINT relation) const {
        return reinterpret_cast<HTREEITEM>(Send(TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(item)));
    }
    HTREEITEM GetRootItem() const { return GetNextItem(nullptr, TVGN_ROOT); }
    HTREEITEM GetChildItem(HTREEITEM item) const { return GetNextItem(item, TVGN_CHILD); }
    HTREEITEM GetNextSiblingItem(HTREEITEM item) const { return GetNextItem(item, TVGN_NEXT); }
    HTREEITEM GetSelectedItem() const { return GetNextItem(nullptr, TVGN_CARET); }
    // Makes the item the selection; the parent is told by TVN_SELCHANGING and TVN_SELCHANGED.
    bool SelectItem(HTREEITEM item) const {
        return Send(TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(item)) != FALSE;
    }
    bool Expand(HTREEITEM item, UINT action = TVE_EXPAND) const {
        return Send(TVM_EXPAND, action, reinterpret_cast<LPARAM>(item)) != FALSE;
    }

    LPARAM GetItemData(HTREEITEM item) const;
    bool SetItemData(HTREEITEM item, LPARAM data) const;
    std::wstring GetItemText(HTREEITEM item) const;
};

}  // namespace ui
