// Reading the text of a control, and of the hidden labels that keep "/"-separated lists in a
// dialog template so that they are translated with the rest of the dialog.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace ui {

// The control's whole text.
std::wstring ControlText(HWND control);

// Empties parts, then fills it with the control's text cut at every "/", empty fields kept;
// returns the count (0 for an empty text).
int SplitControlText(HWND control, std::vector<std::wstring>& parts);

}  // namespace ui
