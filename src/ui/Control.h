// A borrowed control window: the wrappers of this folder never own the window they are given, and
// dropping one leaves the control as it is. Their methods are the control's messages, one each.
#pragma once

#include <windows.h>

#include <string>

namespace ui {

class Control {
public:
    Control() = default;
    explicit Control(HWND window) : window_(window) {}
    // The control with this id in a dialog.
    Control(HWND dialog, int id) : window_(GetDlgItem(dialog, id)) {}

    HWND hwnd() const { return window_; }
    explicit operator bool() const { return window_ != nullptr; }
    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return SendMessageW(window_, message, wParam, lParam);
    }

    std::wstring Text() const;
    void SetText(const std::wstring& text) const { SetWindowTextW(window_, text.c_str()); }
    int Id() const { return GetDlgCtrlID(window_); }
    void Enable(bool enable) const { EnableWindow(window_, enable); }
    bool IsEnabled() const { return IsWindowEnabled(window_) != FALSE; }
    void Show(bool show) const { ShowWindow(window_, show ? SW_SHOW : SW_HIDE); }
    bool IsVisible() const { return IsWindowVisible(window_) != FALSE; }
    void Focus() const { SetFocus(window_); }
    // Whether the window's class is this one, ignoring case ("Edit", WC_COMBOBOXW, ...).
    bool IsClass(const wchar_t* className) const;

private:
    HWND window_ = nullptr;
};

// Holds a control's drawing back while it is filled item by item, which under some systems costs
// more than the items themselves; it draws once, when this goes.
class RedrawPaused {
public:
    explicit RedrawPaused(const Control& control) : window_(control.hwnd()) {
        SendMessageW(window_, WM_SETREDRAW, FALSE, 0);
    }
    ~RedrawPaused() {
        SendMessageW(window_, WM_SETREDRAW, TRUE, 0);
        InvalidateRect(window_, nullptr, TRUE);
    }
    RedrawPaused(const RedrawPaused&) = delete;
    RedrawPaused& operator=(const RedrawPaused&) = delete;

private:
    HWND window_;
};

}  // namespace ui
