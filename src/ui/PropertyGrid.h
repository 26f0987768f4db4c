// A property grid: names on the left, values on the right, in groups that open and close. Booleans
// are check boxes, texts are edited in place, colours show a swatch and open the system's colour
// chooser from a drop button, fonts open the font chooser from a "..." button. Edited values are drawn
// bold. The keyboard does all of it (arrows, Home, End, pages, Left and Right to fold, Enter, Space,
// F2, F4 and Alt+Down), as do the mouse and its wheel. What is shown is the model's; after changing
// the model from outside, Refresh.
#pragma once

#include <windows.h>

#include <uxtheme.h>

#include <optional>
#include <vector>

#include "ui/PropertyGridModel.h"

namespace ui {

class PropertyGrid {
public:
    static constexpr const wchar_t* kClassName = L"OptionPropertyGrid";
    // Posted by the edit in place when it loses the focus: it goes once its own message has returned.
    static constexpr UINT kEndEditMessage = WM_APP + 0x50;
    static constexpr UINT_PTR kEditSubclass = 0x50475245;  // "PGRE"

    PropertyGrid() = default;
    ~PropertyGrid();
    PropertyGrid(const PropertyGrid&) = delete;
    PropertyGrid& operator=(const PropertyGrid&) = delete;

    // Makes the window in the parent's client coordinates, with the parent's font; false when it
    // could not be made.
    bool Create(HWND parent, int id, const RECT& rect, DWORD style);
    HWND hwnd() const { return window_; }

    PropertyGridModel& model() { return model_; }
    // Shows the model as it now is, ending an edit in place without taking it.
    void Refresh();
    // The flags the font chooser opens with.
    void SetFontChooserFlags(unsigned flags) { fontFlags_ = flags; }
    // Whether a group's name may run on over the value column.
    void SetGroupNameFullWidth(bool fullWidth);
    // Whether edited values are drawn bold.
    void MarkModifiedProperties(bool mark);
    // What Enter does on the selected property: fold a group, tick a box, edit a text, choose a colour or font.
    void ActOnSelected();
    // Takes the text of an edit in place, if one is open, as Enter would.
    void CommitEdit() { EndEdit(true); }

private:
    static LRESULT CALLBACK Proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK EditProc(HWND edit, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR self);
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
    // The mouse's messages; nullopt for any other.
    std::optional<LRESULT> HandleMouse(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT HandleEdit(HWND edit, UINT message, WPARAM wParam, LPARAM lParam);

    // Sizes from the font and the window's dots per inch.
    void Measure();
    void SetFont(HFONT font);
    int Scale(int pixels) const { return MulDiv(pixels, dpi_, 96); }
    int PageRows() const;
    void UpdateScrollBar();
    void ScrollTo(int topRow);
    void EnsureSelectedVisible();

    // Geometry of the row shown at index (counted from the first row of the model).
    RECT RowRect(int row) const;
    RECT ValueRect(int row) const;
    RECT ButtonRect(int row) const;
    RECT CheckRect(int row) const;
    RECT GlyphRect(int row, int depth) const;
    int RowAt(int y) const;

    // The visual style's parts, held while the window lives; null without a style.
    void OpenThemes();
    void CloseThemes();
    void Paint(HDC dc, const RECT& area);
    void PaintRow(HDC dc, int row, const GridRow& shown, const RECT& client);
    void PaintValue(HDC dc, int row, const Property& property, const RECT& value);
    void PaintGlyph(HDC dc, const RECT& glyph, bool expanded);
    // Draws a part of the visual style over a background of one colour. The style draws slowly and the
    // grid shows the same few parts on many rows, so each look is drawn once into a bitmap and copied.
    void PaintPart(HDC dc, HTHEME theme, int part, int state, const RECT& rect, COLORREF background);
    // Forgets the drawn parts: the style, the sizes or the colours they were drawn with have changed.
    void DropParts();

    void OnKeyDown(WPARAM key, bool alt);
    void OnMouseDown(int x, int y, bool doubleClick);
    void Toggle(int id);
    void ChooseValue(int id);
    void BeginEdit(int id, const wchar_t* typed);
    void EndEdit(bool take);

    HWND window_ = nullptr;
    PropertyGridModel model_;
    HFONT font_ = nullptr;      // borrowed from the parent
    HFONT boldFont_ = nullptr;  // ours
    int dpi_ = 96;
    int rowHeight_ = 18;
    int indent_ = 16;
    int topRow_ = 0;
    double split_ = 0.5;  // the name column's share of the width
    bool dragging_ = false;
    int wheelRest_ = 0;
    unsigned fontFlags_ = 0;
    bool groupFullWidth_ = true;
    bool markModified_ = true;
    HWND edit_ = nullptr;
    int editId_ = -1;
    HTHEME buttonTheme_ = nullptr;
    HTHEME comboTheme_ = nullptr;
    HTHEME treeTheme_ = nullptr;
    struct DrawnPart {
        HTHEME theme;
        int part;
        int state;
        SIZE size;
        COLORREF background;
        HBITMAP bitmap;
    };
    std::vector<DrawnPart> drawnParts_;
    HDC partsDc_ = nullptr;  // holds each drawn part in turn while it is copied
};

}  // namespace ui
