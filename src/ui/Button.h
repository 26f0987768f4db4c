// A borrowed push button, check box or radio button.
#pragma once

#include "ui/Control.h"

namespace ui {

class Button : public Control {
public:
    using Control::Control;

    // BST_UNCHECKED, BST_CHECKED or BST_INDETERMINATE.
    int GetCheck() const { return static_cast<int>(Send(BM_GETCHECK)); }
    void SetCheck(int state) const { Send(BM_SETCHECK, static_cast<WPARAM>(state)); }
    bool IsChecked() const { return GetCheck() == BST_CHECKED; }
    // As if the user clicked: the parent gets BN_CLICKED, an automatic button changes its state.
    void Click() const { Send(BM_CLICK); }
};

}  // namespace ui
