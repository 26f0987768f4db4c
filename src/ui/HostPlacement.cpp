#include "ui/HostPlacement.h"

#include "platform/Platform.h"
#include "services/HostHandshake.h"

namespace ui {

namespace {

constexpr UINT kBringToFrontRetryMs = 50;
constexpr UINT kKeepPlace = SWP_NOSIZE | SWP_NOMOVE;

platform::WindowRef Ref(HWND window) {
    return reinterpret_cast<platform::WindowRef>(window);
}

ScreenRect ToScreenRect(const RECT& rect) {
    return {rect.left, rect.top, rect.right, rect.bottom};
}

bool Held(int key) {
    return GetKeyState(key) < 0;
}

}  // namespace

void CentreOnHost(HWND dialog) {
    HWND host = reinterpret_cast<HWND>(platform::Current().windows.FindHostWindow());
    if (!host) return;
    RECT hostRect{};
    RECT dialogRect{};
    GetWindowRect(host, &hostRect);
    GetWindowRect(dialog, &dialogRect);
    MONITORINFO monitor{};
    monitor.cbSize = sizeof(monitor);
    GetMonitorInfoW(MonitorFromWindow(host, MONITOR_DEFAULTTONEAREST), &monitor);
    ScreenRect placed = CentredOnHost(ToScreenRect(hostRect), ToScreenRect(dialogRect), ToScreenRect(monitor.rcWork));
    SetWindowPos(dialog, nullptr, placed.left, placed.top, 0, 0, SWP_NOZORDER | SWP_NOSIZE);
}

void DeferredBringToFront(HWND dialog) {
    KillTimer(dialog, kBringToFrontTimer);
    if (Held(VK_SHIFT) || Held(VK_CONTROL)) {
        SetTimer(dialog, kBringToFrontTimer, kBringToFrontRetryMs, nullptr);
        return;
    }
    SetWindowPos(dialog, HWND_TOPMOST, 0, 0, 0, 0, kKeepPlace);
    SetWindowPos(dialog, HWND_NOTOPMOST, 0, 0, 0, 0, kKeepPlace);
    platform::Current().windows.ForceForeground(Ref(dialog));
}

void PrepareOptionDialog(HWND dialog, int32_t windowMode) {
    HostPlacement placement = PlacementForMode(windowMode);
    if (placement.centreOnHost) CentreOnHost(dialog);
    if (placement.toolWindow)
        SetWindowLongPtrW(dialog, GWL_EXSTYLE, GetWindowLongPtrW(dialog, GWL_EXSTYLE) | WS_EX_TOOLWINDOW);
    switch (placement.forward) {
        case ComingForward::Deferred:
            DeferredBringToFront(dialog);
            break;
        case ComingForward::TopmostThenForced:
            SetWindowPos(dialog, HWND_TOPMOST, 0, 0, 0, 0, kKeepPlace);
            platform::Current().windows.ForceForeground(Ref(dialog));
            break;
        case ComingForward::Nothing:
            break;
    }
}

}  // namespace ui
