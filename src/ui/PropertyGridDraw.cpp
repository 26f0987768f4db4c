// How the grid looks: a grey margin and grey group rows, names left of a split line and values right
// of it, drawn off screen and then copied so that scrolling and typing do not flicker. Check boxes,
// the tree's fold glyphs and the buttons take the current visual style where there is one.
#include "ui/PropertyGrid.h"

#include <uxtheme.h>
#include <vssym32.h>

#include <algorithm>
#include <string>

namespace ui {

namespace {

void Fill(HDC dc, const RECT& rect, COLORREF colour) {
    SetBkColor(dc, colour);
    ExtTextOutW(dc, 0, 0, ETO_OPAQUE, &rect, nullptr, 0, nullptr);
}

void Line(HDC dc, int x0, int y0, int x1, int y1) {
    MoveToEx(dc, x0, y0, nullptr);
    LineTo(dc, x1, y1);
}

void Text(HDC dc, const std::wstring& text, RECT rect, COLORREF colour, UINT extra = 0) {
    SetTextColor(dc, colour);
    DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &rect,
              DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS | extra);
}

}  // namespace

void PropertyGrid::OpenThemes() {
    CloseThemes();
    buttonTheme_ = OpenThemeData(window_, L"BUTTON");
    comboTheme_ = OpenThemeData(window_, L"COMBOBOX");
    treeTheme_ = OpenThemeData(window_, L"TREEVIEW");
}

void PropertyGrid::CloseThemes() {
    DropParts();
    for (HTHEME* theme : {&buttonTheme_, &comboTheme_, &treeTheme_}) {
        if (*theme) CloseThemeData(*theme);
        *theme = nullptr;
    }
}

void PropertyGrid::Paint(HDC target, const RECT& area) {
    RECT client{};
    GetClientRect(window_, &client);
    if (client.right <= 0 || client.bottom <= 0) return;
    HDC dc = CreateCompatibleDC(target);
    HBITMAP bitmap = CreateCompatibleBitmap(target, client.right, client.bottom);
    HGDIOBJ oldBitmap = SelectObject(dc, bitmap);
    HGDIOBJ oldFont = SelectObject(dc, font_);
    HGDIOBJ oldPen = SelectObject(dc, GetStockObject(DC_PEN));
    SetDCPenColor(dc, GetSysColor(COLOR_BTNFACE));
    SetBkMode(dc, TRANSPARENT);

    Fill(dc, client, GetSysColor(COLOR_WINDOW));
    const std::vector<GridRow>& rows = model_.Rows();
    const int last = std::min(static_cast<int>(rows.size()), topRow_ + PageRows() + 1);
    for (int row = topRow_; row < last; ++row) PaintRow(dc, row, rows[static_cast<size_t>(row)], client);
    // The margin runs on below the last row, as the split line does.
    const int below = (last - topRow_) * rowHeight_;
    if (below < client.bottom) Fill(dc, {0, below, indent_, client.bottom}, GetSysColor(COLOR_BTNFACE));

    BitBlt(target, area.left, area.top, area.right - area.left, area.bottom - area.top, dc, area.left, area.top,
           SRCCOPY);
    SelectObject(dc, oldPen);
    SelectObject(dc, oldFont);
    SelectObject(dc, oldBitmap);
    DeleteObject(bitmap);
    DeleteDC(dc);
}

void PropertyGrid::PaintRow(HDC dc, int row, const GridRow& shown, const RECT& client) {
    const Property& property = model_.at(shown.id);
    const RECT rect = RowRect(row);
    const int split = static_cast<int>(client.right * split_);
    const bool group = property.kind == PropertyKind::Group;
    const bool selected = shown.id == model_.selected();
    const bool focused = GetFocus() == window_;

    Fill(dc, {0, rect.top, group ? client.right : indent_, rect.bottom}, GetSysColor(COLOR_BTNFACE));
    RECT name{(shown.depth + 1) * indent_, rect.top, group && groupFullWidth_ ? client.right : split, rect.bottom};
    if (selected) {
        RECT mark = name;
        if (!group) mark.left = indent_ * (shown.depth + 1) - 1;
        Fill(dc, mark, GetSysColor(focused ? COLOR_HIGHLIGHT : COLOR_BTNSHADOW));
        if (focused) DrawFocusRect(dc, &mark);
    }
    if (group) PaintGlyph(dc, GlyphRect(row, shown.depth), property.expanded);

    RECT label = name;
    label.left += 3;
    label.right -= 2;
    HGDIOBJ old = SelectObject(dc, group ? boldFont_ : font_);
    Text(dc, property.name, label,
         selected ? GetSysColor(focused ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOW) : GetSysColor(COLOR_WINDOWTEXT));
    SelectObject(dc, old);

    Line(dc, group ? 0 : indent_, rect.bottom - 1, client.right, rect.bottom - 1);
    if (group) return;
    Line(dc, split, rect.top, split, rect.bottom);
    if (editId_ != shown.id) PaintValue(dc, row, property, ValueRect(row));
}

void PropertyGrid::PaintValue(HDC dc, int row, const Property& property, const RECT& value) {
    const bool selected = model_.selected() == model_.Rows()[static_cast<size_t>(row)].id;
    HGDIOBJ old = SelectObject(dc, markModified_ && property.modified ? boldFont_ : font_);
    RECT text = value;
    text.left += Scale(4);
    text.bottom -= 1;
    const bool hasButton = selected && (property.kind == PropertyKind::Colour || property.kind == PropertyKind::Font);
    if (hasButton) text.right = ButtonRect(row).left - 1;
    const COLORREF ink = GetSysColor(COLOR_WINDOWTEXT);
    switch (property.kind) {
        case PropertyKind::Colour: {
            const int height = rowHeight_ - Scale(7);
            RECT swatch{text.left, value.top + (rowHeight_ - height) / 2, text.left + height * 3 / 2, 0};
            swatch.bottom = swatch.top + height;
            Fill(dc, swatch, property.colour & 0xFFFFFF);
            FrameRect(dc, &swatch, static_cast<HBRUSH>(GetStockObject(GRAY_BRUSH)));
            text.left = swatch.right + Scale(5);
            Text(dc, ColourText(property.colour), text, ink);
            break;
        }
        case PropertyKind::Boolean: {
            const RECT box = CheckRect(row);
            if (buttonTheme_) {
                PaintPart(dc, buttonTheme_, BP_CHECKBOX, property.check ? CBS_CHECKEDNORMAL : CBS_UNCHECKEDNORMAL, box,
                          GetSysColor(COLOR_WINDOW));
            } else {
                RECT frame = box;
                DrawFrameControl(dc, &frame, DFC_BUTTON, DFCS_BUTTONCHECK | (property.check ? DFCS_CHECKED : 0));
            }
            break;
        }
        case PropertyKind::Text:
            Text(dc, property.text, text, ink);
            break;
        case PropertyKind::Font:
            Text(dc, FontText(property.font, dpi_), text, ink);
            break;
        case PropertyKind::Group:
            break;
    }
    SelectObject(dc, old);
    if (!hasButton) return;
    RECT button = ButtonRect(row);
    if (property.kind == PropertyKind::Colour) {
        if (comboTheme_) {
            PaintPart(dc, comboTheme_, CP_DROPDOWNBUTTON, CBXS_NORMAL, button, GetSysColor(COLOR_WINDOW));
        } else {
            DrawFrameControl(dc, &button, DFC_SCROLL, DFCS_SCROLLCOMBOBOX);
        }
        return;
    }
    if (buttonTheme_) {
        PaintPart(dc, buttonTheme_, BP_PUSHBUTTON, PBS_NORMAL, button, GetSysColor(COLOR_WINDOW));
    } else {
        DrawFrameControl(dc, &button, DFC_BUTTON, DFCS_BUTTONPUSH);
    }
    Text(dc, L"...", button, GetSysColor(COLOR_BTNTEXT), DT_CENTER);
}

void PropertyGrid::PaintGlyph(HDC dc, const RECT& glyph, bool expanded) {
    SIZE size{Scale(9), Scale(9)};
    if (treeTheme_) GetThemePartSize(treeTheme_, dc, TVP_GLYPH, GLPS_CLOSED, nullptr, TS_TRUE, &size);
    const int x = (glyph.left + glyph.right - size.cx) / 2, y = (glyph.top + glyph.bottom - size.cy) / 2;
    RECT box{x, y, x + size.cx, y + size.cy};
    if (treeTheme_) {
        PaintPart(dc, treeTheme_, TVP_GLYPH, expanded ? GLPS_OPENED : GLPS_CLOSED, box, GetSysColor(COLOR_BTNFACE));
        return;
    }
    Fill(dc, box, GetSysColor(COLOR_WINDOW));
    FrameRect(dc, &box, static_cast<HBRUSH>(GetStockObject(GRAY_BRUSH)));
    SetDCPenColor(dc, GetSysColor(COLOR_WINDOWTEXT));
    const int midX = (box.left + box.right) / 2, midY = (box.top + box.bottom) / 2;
    Line(dc, box.left + 2, midY, box.right - 2, midY);
    if (!expanded) Line(dc, midX, box.top + 2, midX, box.bottom - 2);
    SetDCPenColor(dc, GetSysColor(COLOR_BTNFACE));
}

void PropertyGrid::PaintPart(HDC dc, HTHEME theme, int part, int state, const RECT& rect, COLORREF background) {
    const SIZE size{rect.right - rect.left, rect.bottom - rect.top};
    if (size.cx <= 0 || size.cy <= 0) return;
    if (!partsDc_) partsDc_ = CreateCompatibleDC(dc);
    if (!partsDc_) {
        DrawThemeBackground(theme, dc, part, state, &rect, nullptr);
        return;
    }
    auto drawn = std::find_if(drawnParts_.begin(), drawnParts_.end(), [&](const DrawnPart& each) {
        return each.theme == theme && each.part == part && each.state == state && each.size.cx == size.cx &&
               each.size.cy == size.cy && each.background == background;
    });
    if (drawn == drawnParts_.end()) {
        HBITMAP bitmap = CreateCompatibleBitmap(dc, size.cx, size.cy);
        if (!bitmap) {
            DrawThemeBackground(theme, dc, part, state, &rect, nullptr);
            return;
        }
        SelectObject(partsDc_, bitmap);
        const RECT whole{0, 0, size.cx, size.cy};
        Fill(partsDc_, whole, background);
        DrawThemeBackground(theme, partsDc_, part, state, &whole, nullptr);
        drawn = drawnParts_.insert(drawnParts_.end(), {theme, part, state, size, background, bitmap});
    }
    SelectObject(partsDc_, drawn->bitmap);
    BitBlt(dc, rect.left, rect.top, size.cx, size.cy, partsDc_, 0, 0, SRCCOPY);
}

void PropertyGrid::DropParts() {
    // The DC lets go of the last bitmap it held only when it goes itself.
    if (partsDc_) DeleteDC(partsDc_);
    partsDc_ = nullptr;
    for (const DrawnPart& drawn : drawnParts_) DeleteObject(drawn.bitmap);
    drawnParts_.clear();
}

}  // namespace ui
