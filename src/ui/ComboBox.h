// A borrowed combo box. Index results are CB_ERR (-1) when there is no such item.
#pragma once

#include <string>

#include "ui/Control.h"

namespace ui {

class ComboBox : public Control {
public:
    using Control::Control;

    // The new item's index; CB_ERR or CB_ERRSPACE on failure.
    int AddString(const std::wstring& text) const {
        return static_cast<int>(Send(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str())));
    }
    int InsertString(int index, const std::wstring& text) const {
        return static_cast<int>(
            Send(CB_INSERTSTRING, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.c_str())));
    }
    int DeleteString(int index) const { return static_cast<int>(Send(CB_DELETESTRING, static_cast<WPARAM>(index))); }
    void ResetContent() const { Send(CB_RESETCONTENT); }
    int GetCount() const { return static_cast<int>(Send(CB_GETCOUNT)); }
    int GetCurSel() const { return static_cast<int>(Send(CB_GETCURSEL)); }
    // Empty for an index out of range.
    std::wstring GetText(int index) const {
        const LRESULT length = Send(CB_GETLBTEXTLEN, static_cast<WPARAM>(index));
        if (length <= 0) return {};
        std::wstring text(static_cast<size_t>(length) + 1, L'\0');
        text.resize(
            static_cast<size_t>(Send(CB_GETLBTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.data()))));
        return text;
    }
    // -1 clears the selection.
    int SetCurSel(int index) const { return static_cast<int>(Send(CB_SETCURSEL, static_cast<WPARAM>(index))); }
    LPARAM GetItemData(int index) const { return Send(CB_GETITEMDATA, static_cast<WPARAM>(index)); }
    void SetItemData(int index, LPARAM data) const { Send(CB_SETITEMDATA, static_cast<WPARAM>(index), data); }
    void LimitText(int count) const { Send(CB_LIMITTEXT, static_cast<WPARAM>(count)); }
};

}  // namespace ui
