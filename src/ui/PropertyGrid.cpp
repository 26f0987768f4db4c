#include "ui/PropertyGrid.h"

#include <algorithm>
#include <optional>

namespace ui {

namespace {

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
    DropParts();
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
    // Drawing the styled bar costs more than the rows do; a rebuilt model of the same size leaves it as it is.
    SCROLLINFO shown{};
    shown.cbSize = sizeof(shown);
    shown.fMask = SIF_ALL;
    if (GetScrollInfo(window_, SB_VERT, &shown) && shown.nMin == info.nMin && shown.nMax == info.nMax &&
        shown.nPage == info.nPage && shown.nPos == info.nPos)
        return;
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

LRESULT PropertyGrid::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    if (std::optional<LRESULT> answer = HandleMouse(message, wParam, lParam)) return *answer;
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
