// A borrowed edit control.
#pragma once

#include "ui/Control.h"

namespace ui {

class Edit : public Control {
public:
    using Control::Control;

    // The most characters the user may type (16-bit units); 0 lifts the limit to the system's.
    void SetLimitText(int count) const { Send(EM_LIMITTEXT, static_cast<WPARAM>(count)); }
    int GetLimitText() const { return static_cast<int>(Send(EM_GETLIMITTEXT)); }
    // end -1: to the end of the text.
    void SetSel(int start, int end) const { Send(EM_SETSEL, static_cast<WPARAM>(start), end); }
    void SelectAll() const { SetSel(0, -1); }
    void ReplaceSel(const std::wstring& text) const {
        Send(EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text.c_str()));
    }
    void SetReadOnly(bool readOnly) const { Send(EM_SETREADONLY, readOnly); }
};

}  // namespace ui
