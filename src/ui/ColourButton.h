// A push button that shows a colour and offers the system's colour chooser when pressed. The button
// is owner-drawn (BS_OWNERDRAW in the template), so it is a plain button to the keyboard and to
// accessibility, with its caption as its name; its dialog hands it WM_DRAWITEM and the click.
#pragma once

#include <windows.h>

#include <cstdint>

#include "ui/Control.h"

namespace ui {

class ColourButton : public Control {
public:
    ColourButton() = default;
    ColourButton(HWND dialog, int id) : Control(dialog, id) {}

    uint32_t colour() const { return colour_; }
    void SetColour(uint32_t colour);
    // Asks the user for another colour; true when one was chosen.
    bool Choose();
    // Paints the face: the frame of a push button, the colour inside it, greyed while disabled.
    void Draw(const DRAWITEMSTRUCT& item) const;

private:
    uint32_t colour_ = 0;
};

}  // namespace ui
