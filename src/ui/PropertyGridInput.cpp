// What the keyboard and the mouse do to the grid, and the edit in place of a text.
#include "ui/PropertyGrid.h"

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>
#include <optional>

#include "platform/Platform.h"
#include "ui/ControlText.h"

namespace ui {

void PropertyGrid::Toggle(int id) {
    const Property& property = model_.at(id);
    if (property.kind == PropertyKind::Group) {
        model_.SetExpanded(id, !property.expanded);
        UpdateScrollBar();
    } else if (property.kind == PropertyKind::Boolean) {
        model_.SetBoolean(id, !property.check);
    }
    InvalidateRect(window_, nullptr, FALSE);
}

void PropertyGrid::ChooseValue(int id) {
    const Property& property = model_.at(id);
    platform::Prompts& prompts = platform::Current().prompts;
    if (property.kind == PropertyKind::Colour) {
        if (std::optional<uint32_t> colour = prompts.ChooseColour(property.colour)) model_.SetColour(id, *colour);
    } else if (property.kind == PropertyKind::Font) {
        if (std::optional<LogFont> font = prompts.ChooseFontFace(property.font, fontFlags_)) model_.SetFont(id, *font);
    } else if (property.kind == PropertyKind::Text) {
        return BeginEdit(id, nullptr);
    }
    if (window_) InvalidateRect(window_, nullptr, FALSE);
}

void PropertyGrid::ActOnSelected() {
    const int id = model_.selected();
    if (id < 0) return;
    const PropertyKind kind = model_.at(id).kind;
    if (kind == PropertyKind::Group || kind == PropertyKind::Boolean) return Toggle(id);
    ChooseValue(id);
}

void PropertyGrid::BeginEdit(int id, const wchar_t* typed) {
    EndEdit(true);
    const int row = model_.SelectedRow();
    if (row < 0 || model_.at(id).kind != PropertyKind::Text) return;
    RECT value = ValueRect(row);
    value.bottom -= 1;
    const bool bold = markModified_ && model_.at(id).modified;
    edit_ = CreateWindowExW(0, WC_EDITW, typed ? typed : model_.at(id).text.c_str(), WS_CHILD | ES_AUTOHSCROLL,
                            value.left + Scale(2), value.top + 1, value.right - value.left - Scale(2),
                            value.bottom - value.top - 1, window_, nullptr, GetModuleHandleW(nullptr), nullptr);
    if (!edit_) return;
    editId_ = id;
    SendMessageW(edit_, WM_SETFONT, reinterpret_cast<WPARAM>(bold ? boldFont_ : font_), FALSE);
    SetWindowSubclass(edit_, EditProc, kEditSubclass, reinterpret_cast<DWORD_PTR>(this));
    const int length = GetWindowTextLengthW(edit_);
    SendMessageW(edit_, EM_SETSEL, typed ? length : 0, length);
    ShowWindow(edit_, SW_SHOW);
    SetFocus(edit_);
}

void PropertyGrid::EndEdit(bool take) {
    if (!edit_) return;
    HWND edit = edit_;
    const int id = editId_;
    edit_ = nullptr;
    editId_ = -1;
    if (take && id >= 0 && id < model_.size()) model_.SetText(id, ControlText(edit));
    const bool hadFocus = GetFocus() == edit;
    RemoveWindowSubclass(edit, EditProc, kEditSubclass);
    DestroyWindow(edit);
    if (hadFocus) SetFocus(window_);
    InvalidateRect(window_, nullptr, FALSE);
}

void PropertyGrid::OnKeyDown(WPARAM key, bool alt) {
    const int id = model_.selected();
    const bool leaf = id >= 0 && model_.at(id).kind != PropertyKind::Group;
    std::optional<GridKey> walk;
    switch (key) {
        case VK_UP:
        case VK_DOWN:
            if (alt && key == VK_DOWN) {
                if (leaf) ChooseValue(id);
                return;
            }
            walk = key == VK_UP ? GridKey::Up : GridKey::Down;
            break;
        case VK_HOME:
            walk = GridKey::Home;
            break;
        case VK_END:
            walk = GridKey::End;
            break;
        case VK_PRIOR:
            walk = GridKey::PageUp;
            break;
        case VK_NEXT:
            walk = GridKey::PageDown;
            break;
        case VK_LEFT:
            walk = GridKey::Left;
            break;
        case VK_RIGHT:
            walk = GridKey::Right;
            break;
        case VK_ADD:
            walk = GridKey::Expand;
            break;
        case VK_SUBTRACT:
            walk = GridKey::Collapse;
            break;
        case VK_RETURN:
            return ActOnSelected();
        case VK_SPACE:
            if (id >= 0 && model_.at(id).kind != PropertyKind::Text) ActOnSelected();
            return;
        case VK_F2:
            if (leaf) BeginEdit(id, nullptr);
            return;
        case VK_F4:
            if (leaf) ChooseValue(id);
            return;
        default:
            return;
    }
    if (id < 0 && (*walk == GridKey::Down || *walk == GridKey::Up)) walk = GridKey::Home;
    if (!model_.OnKey(*walk, PageRows())) return;
    UpdateScrollBar();
    EnsureSelectedVisible();
    InvalidateRect(window_, nullptr, FALSE);
}

void PropertyGrid::OnMouseDown(int x, int y, bool doubleClick) {
    SetFocus(window_);
    const int row = RowAt(y);
    if (row < 0) return;
    const GridRow shown = model_.Rows()[static_cast<size_t>(row)];
    model_.Select(shown.id);
    InvalidateRect(window_, nullptr, FALSE);
    const Property& property = model_.at(shown.id);
    const POINT point{x, y};
    if (property.kind == PropertyKind::Group) {
        const RECT glyph = GlyphRect(row, shown.depth);
        if (doubleClick || PtInRect(&glyph, point)) Toggle(shown.id);
        return;
    }
    const RECT value = ValueRect(row), button = ButtonRect(row), check = CheckRect(row);
    if (property.kind == PropertyKind::Boolean) {
        if (PtInRect(&check, point) || (doubleClick && PtInRect(&value, point))) Toggle(shown.id);
    } else if (property.kind == PropertyKind::Text) {
        if (PtInRect(&value, point)) BeginEdit(shown.id, nullptr);
    } else if (PtInRect(&button, point) || (doubleClick && PtInRect(&value, point))) {
        ChooseValue(shown.id);
    }
}

LRESULT PropertyGrid::HandleEdit(HWND edit, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_GETDLGCODE: {
            // Enter and Escape end the edit rather than the dialog.
            const auto* msg = reinterpret_cast<const MSG*>(lParam);
            if (msg && msg->message == WM_KEYDOWN && (msg->wParam == VK_RETURN || msg->wParam == VK_ESCAPE))
                return DLGC_WANTALLKEYS | DefSubclassProc(edit, message, wParam, lParam);
            break;
        }
        case WM_KEYDOWN:
            if (wParam == VK_RETURN || wParam == VK_ESCAPE) {
                EndEdit(wParam == VK_RETURN);
                return 0;
            }
            if (wParam == VK_UP || wParam == VK_DOWN || wParam == VK_PRIOR || wParam == VK_NEXT) {
                EndEdit(true);
                OnKeyDown(wParam, false);
                return 0;
            }
            break;
        case WM_CHAR:
            if (wParam == L'\r' || wParam == 27) return 0;  // no beep for the keys taken above
            break;
        case WM_KILLFOCUS:
            PostMessageW(window_, kEndEditMessage, 0, reinterpret_cast<LPARAM>(edit));
            break;
        default:
            break;
    }
    return DefSubclassProc(edit, message, wParam, lParam);
}

LRESULT CALLBACK PropertyGrid::EditProc(HWND edit, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                        DWORD_PTR self) {
    try {
        return reinterpret_cast<PropertyGrid*>(self)->HandleEdit(edit, message, wParam, lParam);
    } catch (...) {
        return DefSubclassProc(edit, message, wParam, lParam);
    }
}

std::optional<LRESULT> PropertyGrid::HandleMouse(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK: {
            const int x = GET_X_LPARAM(lParam);
            RECT client{};
            GetClientRect(window_, &client);
            if (std::abs(x - static_cast<int>(client.right * split_)) <= Scale(3)) {
                dragging_ = true;
                SetCapture(window_);
                return LRESULT{0};
            }
            OnMouseDown(x, GET_Y_LPARAM(lParam), message == WM_LBUTTONDBLCLK);
            return LRESULT{0};
        }
        case WM_MOUSEMOVE:
            if (dragging_) {
                RECT client{};
                GetClientRect(window_, &client);
                if (client.right > 0) split_ = std::clamp(GET_X_LPARAM(lParam) / double(client.right), 0.2, 0.8);
                EndEdit(true);
                InvalidateRect(window_, nullptr, FALSE);
            }
            return LRESULT{0};
        case WM_LBUTTONUP:
        case WM_CAPTURECHANGED:
            if (dragging_ && message == WM_LBUTTONUP) ReleaseCapture();
            dragging_ = false;
            return LRESULT{0};
        case WM_SETCURSOR: {
            POINT point{};
            GetCursorPos(&point);
            ScreenToClient(window_, &point);
            RECT client{};
            GetClientRect(window_, &client);
            if (LOWORD(lParam) == HTCLIENT && std::abs(point.x - static_cast<int>(client.right * split_)) <= Scale(3)) {
                SetCursor(LoadCursorW(nullptr, IDC_SIZEWE));
                return TRUE;
            }
            break;
        }
        case WM_MOUSEWHEEL: {
            UINT lines = 3;
            SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
            wheelRest_ += GET_WHEEL_DELTA_WPARAM(wParam);
            const int notches = wheelRest_ / WHEEL_DELTA;
            wheelRest_ -= notches * WHEEL_DELTA;
            const int step = lines == WHEEL_PAGESCROLL ? PageRows() : static_cast<int>(lines);
            ScrollTo(topRow_ - notches * step);
            return LRESULT{0};
        }
        case WM_VSCROLL: {
            SCROLLINFO info{};
            info.cbSize = sizeof(info);
            info.fMask = SIF_TRACKPOS;
            GetScrollInfo(window_, SB_VERT, &info);
            const int page = PageRows();
            const int targets[] = {topRow_ - 1,    topRow_ + 1, topRow_ - page, topRow_ + page, info.nTrackPos,
                                   info.nTrackPos, 0,           INT_MAX / 2};
            if (LOWORD(wParam) <= SB_BOTTOM && LOWORD(wParam) != SB_ENDSCROLL)
                ScrollTo(targets[std::min<int>(LOWORD(wParam), 7)]);
            return LRESULT{0};
        }
        default:
            break;
    }
    return std::nullopt;
}

}  // namespace ui
