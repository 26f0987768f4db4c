#include "services/HostHandshake.h"

#include <algorithm>

#include "platform/Platform.h"
#include "services/Format.h"

namespace {

constexpr int32_t kModeHostParent = 3;

}  // namespace

platform::WindowRef HostParent(int32_t windowMode) {
    if (windowMode != kModeHostParent) return 0;
    return platform::Current().windows.FindHostWindow();
}

HostPlacement PlacementForMode(int32_t windowMode) {
    switch (windowMode) {
        // host is parent, centred on the host, tool window, coming forward
        case 1:
            return {false, true, false, ComingForward::TopmostThenForced};
        case 2:
            return {false, true, true, ComingForward::TopmostThenForced};
        case kModeHostParent:
            return {true, false, false, ComingForward::Nothing};
        case 4:
            return {false, true, true, ComingForward::Deferred};
        default:
            return {false, true, false, ComingForward::Deferred};
    }
}

ScreenRect CentredOnHost(const ScreenRect& host, const ScreenRect& dialog, const ScreenRect& workArea) {
    int32_t width = dialog.Width();
    int32_t height = dialog.Height();
    int32_t left = host.left + (host.Width() - width) / 2;
    int32_t top = host.top + (host.Height() - height) / 2;
    if (left + width > workArea.right) left = workArea.right - width;
    if (top + height > workArea.bottom) top = workArea.bottom - height;
    left = std::max(left, workArea.left);
    top = std::max(top, workArea.top);
    return {left, top, left + width, top + height};
}

uint32_t CopyDataSize(const std::wstring& text) {
    return static_cast<uint32_t>(text.size() * 8 + 8);
}

void CopyDataToWindow(platform::WindowRef window, const std::wstring& text, uint32_t code) {
    if (!window) return;
    platform::HostWindows& windows = platform::Current().windows;
    windows.SendCopyData(window, windows.MainWindow(), code, text, CopyDataSize(text));
}

void CopyNumberedTextToWindow(platform::WindowRef window, const std::wstring& text, int32_t number, uint32_t code) {
    CopyDataToWindow(window, crt::Format(L"%d/%s", number, text), code);
}
