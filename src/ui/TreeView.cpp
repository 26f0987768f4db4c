#include "ui/TreeView.h"

#include <vector>

namespace ui {

HTREEITEM TreeView::InsertItem(const std::wstring& text, LPARAM data, HTREEITEM parent, HTREEITEM after) const {
    TVINSERTSTRUCTW insert{};
    insert.hParent = parent;
    insert.hInsertAfter = after;
    insert.item.mask = TVIF_TEXT | TVIF_PARAM;
    insert.item.pszText = const_cast<wchar_t*>(text.c_str());
    insert.item.lParam = data;
    return reinterpret_cast<HTREEITEM>(Send(TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insert)));
}

HTREEITEM TreeView::InsertItem(const std::wstring& text, LPARAM data, int image, HTREEITEM parent) const {
    TVINSERTSTRUCTW insert{};
    insert.hParent = parent;
    insert.hInsertAfter = TVI_LAST;
    insert.item.mask = TVIF_TEXT | TVIF_PARAM | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    insert.item.pszText = const_cast<wchar_t*>(text.c_str());
    insert.item.lParam = data;
    insert.item.iImage = insert.item.iSelectedImage = image;
    return reinterpret_cast<HTREEITEM>(Send(TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insert)));
}

void TreeView::SetItemImage(HTREEITEM item, int image) const {
    TVITEMW change{};
    change.mask = TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    change.hItem = item;
    change.iImage = change.iSelectedImage = image;
    Send(TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&change));
}

LPARAM TreeView::GetItemData(HTREEITEM item) const {
    TVITEMW query{};
    query.mask = TVIF_PARAM;
    query.hItem = item;
    return Send(TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&query)) ? query.lParam : 0;
}

bool TreeView::SetItemData(HTREEITEM item, LPARAM data) const {
    TVITEMW change{};
    change.mask = TVIF_PARAM;
    change.hItem = item;
    change.lParam = data;
    return Send(TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&change)) != FALSE;
}

std::wstring TreeView::GetItemText(HTREEITEM item) const {
    std::vector<wchar_t> buffer(1024, L'\0');
    TVITEMW query{};
    query.mask = TVIF_TEXT;
    query.hItem = item;
    query.pszText = buffer.data();
    query.cchTextMax = static_cast<int>(buffer.size());
    return Send(TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&query)) ? std::wstring(query.pszText) : std::wstring();
}

}  // namespace ui
