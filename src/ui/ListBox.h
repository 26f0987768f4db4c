// A borrowed list box. Index results are LB_ERR (-1) when there is no such item.
#pragma once

#include <string>

#include "ui/Control.h"

namespace ui {

class ListBox : public Control {
public:
    using Control::Control;

    int AddString(const std::wstring& text) const {
        return static_cast<int>(Send(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str())));
    }
    int InsertString(int index, const std::wstring& text) const {
        return static_cast<int>(
            Send(LB_INSERTSTRING, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.c_str())));
    }
    int DeleteString(int index) const { return static_cast<int>(Send(LB_DELETESTRING, static_cast<WPARAM>(index))); }
    void ResetContent() const { Send(LB_RESETCONTENT); }
    int GetCount() const { return static_cast<int>(Send(LB_GETCOUNT)); }
    // For a single-selection list box.
    int GetCurSel() const { return static_cast<int>(Send(LB_GETCURSEL)); }
    int SetCurSel(int index) const { return static_cast<int>(Send(LB_SETCURSEL, static_cast<WPARAM>(index))); }
    std::wstring GetText(int index) const { return ItemText(LB_GETTEXTLEN, LB_GETTEXT, index); }
    LPARAM GetItemData(int index) const { return Send(LB_GETITEMDATA, static_cast<WPARAM>(index)); }
    void SetItemData(int index, LPARAM data) const { Send(LB_SETITEMDATA, static_cast<WPARAM>(index), data); }
};

}  // namespace ui
