// A borrowed up-down control.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include "ui/Control.h"

namespace ui {

class Spin : public Control {
public:
    using Control::Control;

    void SetRange(int lower, int upper) const { Send(UDM_SETRANGE32, static_cast<WPARAM>(lower), upper); }
    void SetBuddy(HWND buddy) const { Send(UDM_SETBUDDY, reinterpret_cast<WPARAM>(buddy)); }
};

}  // namespace ui
