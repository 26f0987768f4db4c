#include "ui/ColourButton.h"

#include "platform/Platform.h"

namespace ui {

void ColourButton::SetColour(uint32_t colour) {
    colour_ = colour;
    if (hwnd()) InvalidateRect(hwnd(), nullptr, FALSE);
}

bool ColourButton::Choose() {
    const std::optional<uint32_t> chosen = platform::Current().prompts.ChooseColour(colour_);
    if (!chosen) return false;
    SetColour(*chosen);
    return true;
}

void ColourButton::Draw(const DRAWITEMSTRUCT& item) const {
    RECT face = item.rcItem;
    const bool pressed = (item.itemState & ODS_SELECTED) != 0;
    const bool disabled = (item.itemState & ODS_DISABLED) != 0;
    DrawFrameControl(item.hDC, &face, DFC_BUTTON, DFCS_BUTTONPUSH | (pressed ? DFCS_PUSHED : 0));
    RECT swatch = face;
    InflateRect(&swatch, -4, -4);
    if (pressed) OffsetRect(&swatch, 1, 1);
    const COLORREF fill = disabled ? GetSysColor(COLOR_BTNFACE) : static_cast<COLORREF>(colour_);
    HBRUSH brush = CreateSolidBrush(fill);
    FillRect(item.hDC, &swatch, brush);
    DeleteObject(brush);
    FrameRect(item.hDC, &swatch, GetSysColorBrush(disabled ? COLOR_GRAYTEXT : COLOR_WINDOWTEXT));
    if (item.itemState & ODS_FOCUS) {
        RECT focus = face;
        InflateRect(&focus, -2, -2);
        DrawFocusRect(item.hDC, &focus);
    }
}

}  // namespace ui
