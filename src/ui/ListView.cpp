#include "ui/ListView.h"

#include <vector>

namespace ui {

int ListView::InsertColumn(int index, const std::wstring& heading, int width, int format) const {
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT;
    column.fmt = format;
    column.cx = width;
    column.pszText = const_cast<wchar_t*>(heading.c_str());
    return static_cast<int>(Send(LVM_INSERTCOLUMNW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&column)));
}

int ListView::InsertItem(int row, const std::wstring& text, LPARAM data) const {
    LVITEMW item{};
    item.mask = LVIF_TEXT | LVIF_PARAM;
    item.iItem = row;
    item.pszText = const_cast<wchar_t*>(text.c_str());
    item.lParam = data;
    return static_cast<int>(Send(LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item)));
}

int ListView::InsertItemInGroup(int row, const std::wstring& text, int groupId, LPARAM data) const {
    LVITEMW item{};
    item.mask = LVIF_TEXT | LVIF_PARAM | LVIF_GROUPID;
    item.iItem = row;
    item.pszText = const_cast<wchar_t*>(text.c_str());
    item.lParam = data;
    item.iGroupId = groupId;
    return static_cast<int>(Send(LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item)));
}

int ListView::InsertGroup(int groupId, const std::wstring& header) const {
    LVGROUP group{};
    group.cbSize = sizeof group;
    group.mask = LVGF_HEADER | LVGF_GROUPID;
    group.pszHeader = const_cast<wchar_t*>(header.c_str());
    group.iGroupId = groupId;
    return static_cast<int>(Send(LVM_INSERTGROUP, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(&group)));
}

// The control copies at most the buffer's size and says how much it copied; a full buffer may mean
// a longer text, so it is asked again with more room.
std::wstring ListView::GetItemText(int row, int column) const {
    std::vector<wchar_t> buffer(256);
    for (;;) {
        LVITEMW item{};
        item.iSubItem = column;
        item.pszText = buffer.data();
        item.cchTextMax = static_cast<int>(buffer.size());
        auto copied =
            static_cast<size_t>(Send(LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item)));
        if (copied + 1 < buffer.size()) return std::wstring(buffer.data(), copied);
        buffer.resize(buffer.size() * 2);
    }
}

bool ListView::SetItemText(int row, int column, const std::wstring& text) const {
    LVITEMW item{};
    item.iSubItem = column;
    item.pszText = const_cast<wchar_t*>(text.c_str());
    return Send(LVM_SETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item)) != FALSE;
}

LPARAM ListView::GetItemData(int row) const {
    LVITEMW item{};
    item.mask = LVIF_PARAM;
    item.iItem = row;
    return Send(LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item)) ? item.lParam : 0;
}

bool ListView::SetItemData(int row, LPARAM data) const {
    LVITEMW item{};
    item.mask = LVIF_PARAM;
    item.iItem = row;
    item.lParam = data;
    return Send(LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item)) != FALSE;
}

bool ListView::SetItemState(int row, UINT state, UINT mask) const {
    LVITEMW item{};
    item.state = state;
    item.stateMask = mask;
    return Send(LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item)) != FALSE;
}

void ListView::SelectRow(int row) const {
    SetItemState(-1, 0, LVIS_SELECTED | LVIS_FOCUSED);
    SetItemState(row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
}

}  // namespace ui
