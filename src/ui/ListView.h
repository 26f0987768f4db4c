// A borrowed list-view control in report view. Rows and columns count from 0; -1 means none.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <string>

#include "ui/Control.h"

namespace ui {

class ListView : public Control {
public:
    using Control::Control;

    // LVS_EX_* bits; only those in mask change.
    void SetExtendedStyle(DWORD mask, DWORD style) const {
        Send(LVM_SETEXTENDEDLISTVIEWSTYLE, mask, static_cast<LPARAM>(style));
    }
    DWORD GetExtendedStyle() const { return static_cast<DWORD>(Send(LVM_GETEXTENDEDLISTVIEWSTYLE)); }

    // The new column's index, -1 on failure.
    int InsertColumn(int index, const std::wstring& heading, int width, int format = LVCFMT_LEFT) const;
    // From the header control, which knows the columns whatever the view.
    int GetColumnCount() const { return static_cast<int>(SendMessageW(GetHeader(), HDM_GETITEMCOUNT, 0, 0)); }
    HWND GetHeader() const { return reinterpret_cast<HWND>(Send(LVM_GETHEADER)); }
    void SetColumnWidth(int column, int width) const { Send(LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(column), width); }
    // The width of the text in the list's font, in pixels; 0 on failure.
    int GetStringWidth(const std::wstring& text) const {
        return static_cast<int>(Send(LVM_GETSTRINGWIDTHW, 0, reinterpret_cast<LPARAM>(text.c_str())));
    }

    // The new row's index, -1 on failure. data: the row's item data.
    int InsertItem(int row, const std::wstring& text, LPARAM data = 0) const;
    bool DeleteItem(int row) const { return Send(LVM_DELETEITEM, static_cast<WPARAM>(row)) != FALSE; }
    void DeleteAllItems() const { Send(LVM_DELETEALLITEMS); }
    int GetItemCount() const { return static_cast<int>(Send(LVM_GETITEMCOUNT)); }

    std::wstring GetItemText(int row, int column) const;
    bool SetItemText(int row, int column, const std::wstring& text) const;
    LPARAM GetItemData(int row) const;
    bool SetItemData(int row, LPARAM data) const;

    UINT GetItemState(int row, UINT mask) const {
        return static_cast<UINT>(Send(LVM_GETITEMSTATE, static_cast<WPARAM>(row), mask));
    }
    // row -1: every row.
    bool SetItemState(int row, UINT state, UINT mask) const;
    // The first row after start (-1: from the top) with every flag of LVNI_SELECTED, LVNI_FOCUSED, ...
    int GetNextItem(int start, UINT flags) const {
        return static_cast<int>(Send(LVM_GETNEXTITEM, static_cast<WPARAM>(start), flags));
    }
    int GetSelectedRow() const { return GetNextItem(-1, LVNI_SELECTED); }
    // Selects and focuses the row alone.
    void SelectRow(int row) const;
    bool EnsureVisible(int row) const { return Send(LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE) != FALSE; }

    // Group view: rows shown under the headings of their groups.
    void EnableGroupView(bool enable) const { Send(LVM_ENABLEGROUPVIEW, enable ? TRUE : FALSE); }
    // The new group's index, -1 on failure.
    int InsertGroup(int groupId, const std::wstring& heading) const;
    // As InsertItem, in the group of that id.
    int InsertGroupedItem(int row, const std::wstring& text, LPARAM data, int groupId) const;

    // The tick of LVS_EX_CHECKBOXES, kept as state image 2 (1 is the empty box).
    bool GetCheck(int row) const { return (GetItemState(row, LVIS_STATEIMAGEMASK) >> 12) == 2; }
    bool SetCheck(int row, bool checked) const {
        return SetItemState(row, INDEXTOSTATEIMAGEMASK(checked ? 2 : 1), LVIS_STATEIMAGEMASK);
    }
};

}  // namespace ui
