// A borrowed list box. Index results are LB_ERR (-1) when there is no such item.
#pragma once

#include <string>

#include "ui/Control.h"

namespace ui {

class ListBox : public Control {
public:
    using Control::Control;

    // The new item's index; LB_ERR or LB_ERRSPACE on failure.
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
    // Of a single-selection list box; LB_ERR when nothing is selected.
    int GetCurSel() const { return static_cast<int>(Send(LB_GETCURSEL)); }
    int SetCurSel(int index) const { return static_cast<int>(Send(LB_SETCURSEL, static_cast<WPARAM>(index))); }
    std::wstring GetText(int index) const {
        const LRESULT length = Send(LB_GETTEXTLEN, static_cast<WPARAM>(index));
        if (length <= 0) return {};
        std::wstring text(static_cast<size_t>(length) + 1, L'\0');
        text.resize(
            static_cast<size_t>(Send(LB_GETTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.data()))));
        return text;
    }
    // Selects the first item after start that begins with text, ignoring case; LB_ERR when none does.
    int SelectString(int start, const std::wstring& text) const {
        return static_cast<int>(
            Send(LB_SELECTSTRING, static_cast<WPARAM>(start), reinterpret_cast<LPARAM>(text.c_str())));
    }
    // The selected item's text; empty when nothing is selected.
    std::wstring SelectedText() const {
        const int index = GetCurSel();
        return index == LB_ERR ? std::wstring() : GetText(index);
    }
};

}  // namespace ui
