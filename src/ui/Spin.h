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
    void GetRange(int& lower, int& upper) const {
        Send(UDM_GETRANGE32, reinterpret_cast<WPARAM>(&lower), reinterpret_cast<LPARAM>(&upper));
    }
    // The position is clamped to the range.
    void SetPos(int position) const { Send(UDM_SETPOS32, 0, position); }
    // The buddy's number, or the nearest end of the range when the buddy holds something else.
    int GetPos() const { return static_cast<int>(Send(UDM_GETPOS32)); }
    void SetBuddy(HWND buddy) const { Send(UDM_SETBUDDY, reinterpret_cast<WPARAM>(buddy)); }
};

}  // namespace ui
