// Where the host's windows come in: the parent of a dialog, how the option dialog places itself
// and comes forward, and texts sent to a host window.
#pragma once

#include <cstdint>
#include <string>

#include "platform/HostWindows.h"

// The first host window when the host asked for mode 3, else none.
platform::WindowRef HostParent(int32_t windowMode);

// How the option dialog comes forward once it is ready.
enum class ComingForward {
    // Topmost and back, then forced forward; while Shift or Ctrl is held, tried again every 50 ms.
    Deferred,
    // Topmost for good, then forced forward.
    TopmostThenForced,
    Nothing,
};

struct HostPlacement {
    bool hostIsParent = false;
    bool centreOnHost = true;
    bool toolWindow = false;  // WS_EX_TOOLWINDOW added
    ComingForward forward = ComingForward::Deferred;
    bool operator==(const HostPlacement&) const = default;
};

// What the option dialog does for the host's window mode; modes it does not know act as 0.
HostPlacement PlacementForMode(int32_t windowMode);

struct ScreenRect {
    int32_t left = 0;
    int32_t top = 0;
    int32_t right = 0;
    int32_t bottom = 0;
    int32_t Width() const { return right - left; }
    int32_t Height() const { return bottom - top; }
    bool operator==(const ScreenRect&) const = default;
};

// The dialog's rectangle moved to the middle of the host's (halves truncated toward zero), then
// pushed back into the work area of the host's monitor: left and up first, so that the left and
// top edges win when the dialog is larger than the work area.
ScreenRect CentredOnHost(const ScreenRect& host, const ScreenRect& dialog, const ScreenRect& workArea);

// The byte count a copy-data message announces: the text's length times 8, plus 8. It is longer
// than the text; a receiver goes by the terminating zero.
uint32_t CopyDataSize(const std::wstring& text);
// WM_COPYDATA to a window with the code as dwData, from the calling thread's main window; nothing
// when there is no window.
void CopyDataToWindow(platform::WindowRef window, const std::wstring& text, uint32_t code);
// The same with the text "<number>/<text>".
void CopyNumberedTextToWindow(platform::WindowRef window, const std::wstring& text, int32_t number, uint32_t code);
