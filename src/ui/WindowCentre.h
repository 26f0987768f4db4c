// The middle of a window's client area, where a menu or a small dialog it opens may appear.
#pragma once

#include <windows.h>

namespace ui {

// In screen coordinates.
inline POINT WindowCentre(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    POINT centre{(client.left + client.right) / 2, (client.top + client.bottom) / 2};
    ClientToScreen(window, &centre);
    return centre;
}

}  // namespace ui
