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
    void ResetContent() const { Send(LB_RESETCONTENT); }
    int GetCount() const { return static_cast<int>(Send(LB_GETCOUNT)); }
    int GetCurSel() const { return static_cast<int>(Send(LB_GETCURSEL)); }
    int SetCurSel(int index) const { return static_cast<int>(Send(LB_SETCURSEL, static_cast<WPARAM>(index))); }
    // Selects the first item after start that begins with text, ignoring case; LB_ERR when none does.
    int SelectString(int start, const std::wstring& text) const {
        return static_cast<int>(
            Send(LB_SELECTSTRING, static_cast<WPARAM>(start), reinterpret_cast<LPARAM>(text.c_str())));
    }
    std::wstring GetText(int index) const;
    // The selected item's text; empty when nothing is selected.
    std::wstring SelectedText() const {
        const int index = GetCurSel();
        return index == LB_ERR ? std::wstring() : GetText(index);
    }
};

inline std::wstring ListBox::GetText(int index) const {
    const LRESULT length = Send(LB_GETTEXTLEN, static_cast<WPARAM>(index));
    if (length == LB_ERR) return {};
    std::wstring text(static_cast<size_t>(length) + 1, L'\0');
    Send(LB_GETTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<size_t>(length));
    return text;
}

}  // namespace ui
