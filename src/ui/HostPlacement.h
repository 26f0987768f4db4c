// How the option dialog places itself against the host and comes forward, by the host's window mode.
#pragma once

#include <windows.h>

#include <cstdint>

namespace ui {

// The timer of the deferred bring-to-front: a dialog passes its WM_TIMER of this id to
// DeferredBringToFront.
constexpr UINT_PTR kBringToFrontTimer = 1000;

// The last step of the option dialog's OnInitDialog: centres it on the host, makes it a tool
// window and brings it forward as the mode says. In mode 3 the host is its parent and it stays
// where the system put it.
void PrepareOptionDialog(HWND dialog, int32_t windowMode);

// Centres the dialog on the first host window, inside the work area of the host's monitor;
// nothing when no host runs.
void CentreOnHost(HWND dialog);

// Topmost and back, then forced forward; while Shift or Ctrl is held it tries again 50 ms later,
// so a user who holds a key keeps the focus where it is until the key is up.
void DeferredBringToFront(HWND dialog);

}  // namespace ui
