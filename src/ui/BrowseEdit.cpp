#include "ui/BrowseEdit.h"

#include <commctrl.h>
#include <windowsx.h>
#include <uxtheme.h>
#include <vssym32.h>

#include <algorithm>

#include "ui/ControlText.h"

namespace ui {

namespace {

constexpr UINT_PTR kSubclassId = 0x42524557;  // "BREW"

int ButtonWidth(int textHeight) {
    return std::max(16, textHeight + 4);
}

}  // namespace

BrowseEdit::~BrowseEdit() {
    Detach();
}

bool BrowseEdit::Attach(HWND dialog, int id, Browse browse) {
    Detach();
    HWND edit = GetDlgItem(dialog, id);
    if (!edit || !SetWindowSubclass(edit, Proc, kSubclassId, reinterpret_cast<DWORD_PTR>(this))) return false;
    edit_ = edit;
    browse_ = std::move(browse);
    // The frame is measured again, now with the button's room taken from the text.
    SetWindowPos(edit_, nullptr, 0, 0, 0, 0,
                 SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    return true;
}

void BrowseEdit::Detach() {
    if (!edit_) return;
    RemoveWindowSubclass(edit_, Proc, kSubclassId);
    edit_ = nullptr;
}

void BrowseEdit::BrowseNow() {
    if (!edit_ || !IsWindowEnabled(edit_) || !browse_) return;
    const std::optional<std::wstring> chosen = browse_(ControlText(edit_));
    if (!chosen) return;
    SendMessageW(edit_, EM_SETSEL, 0, -1);
    SendMessageW(edit_, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(chosen->c_str()));
}

RECT BrowseEdit::ButtonRect() const {
    RECT client{};
    GetClientRect(edit_, &client);
    POINT corner{client.right, client.top};
    ClientToScreen(edit_, &corner);
    const int height = client.bottom - client.top;
    return {corner.x, corner.y, corner.x + ButtonWidth(height), corner.y + height};
}

void BrowseEdit::PaintButton() const {
    RECT button = ButtonRect();
    RECT window{};
    GetWindowRect(edit_, &window);
    OffsetRect(&button, -window.left, -window.top);
    HDC dc = GetWindowDC(edit_);
    if (!dc) return;
    const bool enabled = IsWindowEnabled(edit_) != FALSE;
    if (HTHEME theme = OpenThemeData(edit_, L"BUTTON")) {
        DrawThemeBackground(theme, dc, BP_PUSHBUTTON, enabled ? PBS_NORMAL : PBS_DISABLED, &button, nullptr);
        CloseThemeData(theme);
    } else {
        DrawFrameControl(dc, &button, DFC_BUTTON, DFCS_BUTTONPUSH | (enabled ? 0 : DFCS_INACTIVE));
    }
    HGDIOBJ font = SelectObject(dc, reinterpret_cast<HGDIOBJ>(SendMessageW(edit_, WM_GETFONT, 0, 0)));
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, GetSysColor(enabled ? COLOR_BTNTEXT : COLOR_GRAYTEXT));
    DrawTextW(dc, L"...", -1, &button, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    SelectObject(dc, font);
    ReleaseDC(edit_, dc);
}

LRESULT BrowseEdit::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_NCCALCSIZE: {
            const LRESULT result = DefSubclassProc(edit_, message, wParam, lParam);
            RECT& text = reinterpret_cast<NCCALCSIZE_PARAMS*>(lParam)->rgrc[0];
            text.right = std::max(text.left, text.right - ButtonWidth(text.bottom - text.top));
            return result;
        }
        case WM_NCPAINT: {
            const LRESULT result = DefSubclassProc(edit_, message, wParam, lParam);
            PaintButton();
            return result;
        }
        case WM_ENABLE: {
            const LRESULT result = DefSubclassProc(edit_, message, wParam, lParam);
            RedrawWindow(edit_, nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE);
            return result;
        }
        case WM_NCHITTEST: {
            const POINT point{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
            const RECT button = ButtonRect();
            if (PtInRect(&button, point)) return HTBORDER;
            break;
        }
        case WM_NCLBUTTONDOWN: {
            const POINT point{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
            const RECT button = ButtonRect();
            if (wParam != HTBORDER || !PtInRect(&button, point)) break;
            SetFocus(edit_);
            BrowseNow();
            return 0;
        }
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN:
            // Alt+Down and F4 open a choice, as they do in a drop-down list.
            if (wParam == VK_F4 || (wParam == VK_DOWN && (lParam & (1 << 29)))) {
                BrowseNow();
                return 0;
            }
            break;
        case WM_NCDESTROY: {
            HWND edit = edit_;
            Detach();
            return DefSubclassProc(edit, message, wParam, lParam);
        }
        default:
            break;
    }
    return DefSubclassProc(edit_, message, wParam, lParam);
}

LRESULT CALLBACK BrowseEdit::Proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR self) {
    try {
        return reinterpret_cast<BrowseEdit*>(self)->Handle(message, wParam, lParam);
    } catch (...) {
        return DefSubclassProc(window, message, wParam, lParam);
    }
}

}  // namespace ui
