#include "ui/PropertyGrid.h"

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>
#include <optional>

#include "platform/Platform.h"
#include "ui/ControlText.h"

namespace ui {

namespace {

constexpr UINT_PTR kEditSubclass = 0x50475245;  // "PGRE"
// Posted by the edit in place when it loses the focus: it goes once its own message has returned.
constexpr UINT kEndEditMessage = WM_APP + 0x50;

bool RegisterClassOnce() {
    static const bool registered = [] {
        WNDCLASSEXW type{};
        type.cbSize = sizeof(type);
        type.style = CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW;
        type.lpfnWndProc = DefWindowProcW;
        type.hInstance = GetModuleHandleW(nullptr);
        type.hCursor = LoadCursorW(nullptr, IDC_ARROW);
        type.lpszClassName = PropertyGrid::kClassName;
        return RegisterClassExW(&type) != 0 || GetLastError() == ERROR_CLASS_ALREADY_EXISTS;
    }();
    return registered;
}

int WindowDpi(HWND window) {
    const UINT dpi = GetDpiForWindow(window);
    return dpi ? static_cast<int>(dpi) : 96;
}

}  // namespace

PropertyGrid::~PropertyGrid() {
    if (window_) DestroyWindow(window_);
    if (boldFont_) DeleteObject(boldFont_);
}

bool PropertyGrid::Create(HWND parent, int id, const RECT& rect, DWORD style) {
    if (window_ || !RegisterClassOnce()) return false;
    HWND window =
        CreateWindowExW(0, kClassName, L"", style, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top,
                        parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), GetModuleHandleW(nullptr), nullptr);
    if (!window) return false;
    window_ = window;
    SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Proc));
    dpi_ = WindowDpi(window_);
    OpenThemes();
    SetFont(reinterpret_cast<HFONT>(SendMessageW(parent, WM_GETFONT, 0, 0)));
    Refresh();
    return true;
}

PropertyGrid* PropertyGrid::FromHandle(HWND window) {
    if (!window || GetWindowLongPtrW(window, GWLP_WNDPROC) != reinterpret_cast<LONG_PTR>(&Proc)) return nullptr;
    return reinterpret_cast<PropertyGrid*>(GetWindowLongPtrW(window, GWLP_USERDATA));
}

void PropertyGrid::SetFont(HFONT font) {
    font_ = font ? font : static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
    if (boldFont_) DeleteObject(boldFont_);
    LOGFONTW bold{};
    GetObjectW(font_, sizeof(bold), &bold);
    bold.lfWeight = FW_BOLD;
    boldFont_ = CreateFontIndirectW(&bold);
    Measure();
}

void PropertyGrid::Measure() {
    if (!window_) return;
    HDC dc = GetDC(window_);
    HGDIOBJ old = SelectObject(dc, font_);
    TEXTMETRICW metrics{};
    GetTextMetricsW(dc, &metrics);
    SelectObject(dc, old);
    ReleaseDC(window_, dc);
    rowHeight_ = std::max<int>(metrics.tmHeight + Scale(5), Scale(16));
    indent_ = rowHeight_;
    UpdateScrollBar();
    InvalidateRect(window_, nullptr, TRUE);
}

void PropertyGrid::SetGroupNameFullWidth(bool fullWidth) {
    groupFullWidth_ = fullWidth;
    if (window_) InvalidateRect(window_, nullptr, FALSE);
}

void PropertyGrid::MarkModifiedProperties(bool mark) {
    markModified_ = mark;
    if (window_) InvalidateRect(window_, nullptr, FALSE);
}

void PropertyGrid::Refresh() {
    EndEdit(false);
    UpdateScrollBar();
    if (window_) InvalidateRect(window_, nullptr, FALSE);
}

int PropertyGrid::PageRows() const {
    RECT client{};
    GetClientRect(window_, &client);
    return std::max(1, static_cast<int>(client.bottom / rowHeight_));
}

void PropertyGrid::UpdateScrollBar() {
    if (!window_) return;
    const int rows = static_cast<int>(model_.Rows().size());
    topRow_ = std::clamp(topRow_, 0, std::max(0, rows - PageRows()));
    SCROLLINFO info{};
    info.cbSize = sizeof(info);
    info.fMask = SIF_ALL | SIF_DISABLENOSCROLL;
    info.nMax = std::max(0, rows - 1);
    info.nPage = static_cast<UINT>(PageRows());
    info.nPos = topRow_;
    SetScrollInfo(window_, SB_VERT, &info, TRUE);
}

void PropertyGrid::ScrollTo(int topRow) {
    const int rows = static_cast<int>(model_.Rows().size());
    const int top = std::clamp(topRow, 0, std::max(0, rows - PageRows()));
    if (top == topRow_) return;
    EndEdit(true);
    topRow_ = top;
    UpdateScrollBar();
    InvalidateRect(window_, nullptr, FALSE);
}

void PropertyGrid::EnsureSelectedVisible() {
    const int row = model_.SelectedRow();
    if (row < 0) return;
    if (row < topRow_) {
        ScrollTo(row);
    } else if (row >= topRow_ + PageRows()) {
        ScrollTo(row - PageRows() + 1);
    }
}

RECT PropertyGrid::RowRect(int row) const {
    RECT client{};
    GetClientRect(window_, &client);
    const int top = (row - topRow_) * rowHeight_;
    return {0, top, client.right, top + rowHeight_};
}

RECT PropertyGrid::ValueRect(int row) const {
    RECT rect = RowRect(row);
    rect.left = static_cast<int>(rect.right * split_) + 1;
    return rect;
}

RECT PropertyGrid::ButtonRect(int row) const {
    RECT rect = ValueRect(row);
    rect.left = std::max(rect.left, rect.right - rowHeight_);
    rect.bottom -= 1;
    return rect;
}

RECT PropertyGrid::CheckRect(int row) const {
    RECT rect = ValueRect(row);
    const int side = std::min(Scale(13), rowHeight_ - 2);
    rect.left += Scale(4);
    rect.top += (rowHeight_ - side) / 2;
    return {rect.left, rect.top, rect.left + side, rect.top + side};
}

RECT PropertyGrid::GlyphRect(int row, int depth) const {
    RECT rect = RowRect(row);
    rect.left = depth * indent_;
    rect.right = rect.left + indent_;
    return rect;
}

int PropertyGrid::RowAt(int y) const {
    if (y < 0) return -1;
    const int row = topRow_ + y / rowHeight_;
    return row < static_cast<int>(model_.Rows().size()) ? row : -1;
}

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

LRESULT PropertyGrid::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_PAINT: {
            PAINTSTRUCT ps;
            HDC dc = BeginPaint(window_, &ps);
            Paint(dc, ps.rcPaint);
            EndPaint(window_, &ps);
            return 0;
        }
        case WM_ERASEBKGND:
            return 1;
        case WM_SIZE:
            EndEdit(true);
            UpdateScrollBar();
            InvalidateRect(window_, nullptr, FALSE);
            return 0;
        case WM_SETFONT:
            SetFont(reinterpret_cast<HFONT>(wParam));
            return 0;
        case WM_GETFONT:
            return reinterpret_cast<LRESULT>(font_);
        case WM_DPICHANGED_AFTERPARENT:
            dpi_ = WindowDpi(window_);
            Measure();
            return 0;
        case WM_THEMECHANGED:
            OpenThemes();
            Measure();
            return 0;
        case WM_SETTINGCHANGE:
            Measure();
            return 0;
        case WM_GETDLGCODE: {
            // Enter acts on the property; Tab and Escape stay the dialog's.
            const auto* msg = reinterpret_cast<const MSG*>(lParam);
            LRESULT code = DLGC_WANTARROWS | DLGC_WANTCHARS;
            if (msg && msg->message == WM_KEYDOWN && msg->wParam == VK_RETURN) code |= DLGC_WANTMESSAGE;
            return code;
        }
        case WM_SETFOCUS:
            if (model_.selected() < 0 && !model_.Rows().empty()) model_.Select(model_.Rows().front().id);
            InvalidateRect(window_, nullptr, FALSE);
            return 0;
        case WM_KILLFOCUS:
            InvalidateRect(window_, nullptr, FALSE);
            return 0;
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN:
            if (message == WM_SYSKEYDOWN && wParam != VK_DOWN) break;
            OnKeyDown(wParam, message == WM_SYSKEYDOWN);
            return 0;
        case WM_CHAR: {
            // Typing on a text starts its edit with what was typed.
            const int id = model_.selected();
            if (wParam >= L' ' && wParam != 0x7F && id >= 0 && model_.at(id).kind == PropertyKind::Text) {
                const wchar_t typed[2] = {static_cast<wchar_t>(wParam), 0};
                BeginEdit(id, typed);
            }
            return 0;
        }
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK: {
            const int x = GET_X_LPARAM(lParam);
            RECT client{};
            GetClientRect(window_, &client);
            if (std::abs(x - static_cast<int>(client.right * split_)) <= Scale(3)) {
                dragging_ = true;
                SetCapture(window_);
                return 0;
            }
            OnMouseDown(x, GET_Y_LPARAM(lParam), message == WM_LBUTTONDBLCLK);
            return 0;
        }
        case WM_MOUSEMOVE:
            if (dragging_) {
                RECT client{};
                GetClientRect(window_, &client);
                if (client.right > 0) split_ = std::clamp(GET_X_LPARAM(lParam) / double(client.right), 0.2, 0.8);
                EndEdit(true);
                InvalidateRect(window_, nullptr, FALSE);
            }
            return 0;
        case WM_LBUTTONUP:
        case WM_CAPTURECHANGED:
            if (dragging_ && message == WM_LBUTTONUP) ReleaseCapture();
            dragging_ = false;
            return 0;
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
            return 0;
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
            return 0;
        }
        case kEndEditMessage:
            if (reinterpret_cast<HWND>(lParam) == edit_ && GetFocus() != edit_) EndEdit(true);
            return 0;
        case WM_NCDESTROY: {
            HWND window = window_;
            CloseThemes();
            edit_ = nullptr;
            SetWindowLongPtrW(window, GWLP_USERDATA, 0);
            window_ = nullptr;
            return DefWindowProcW(window, message, wParam, lParam);
        }
        default:
            break;
    }
    return DefWindowProcW(window_, message, wParam, lParam);
}

LRESULT CALLBACK PropertyGrid::Proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* self = reinterpret_cast<PropertyGrid*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (!self) return DefWindowProcW(window, message, wParam, lParam);
    try {
        return self->Handle(message, wParam, lParam);
    } catch (...) {
        return DefWindowProcW(window, message, wParam, lParam);
    }
}

}  // namespace ui
