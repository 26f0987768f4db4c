// A template's initial data: strings that the resource puts into the dialog's combo and list boxes
// before the dialog sets itself up, so that they are the dialog's own text and are translated with it.
#pragma once

#include <windows.h>

namespace ui {

// Adds the entries of the initial data stored under templateId, if there is any, to their controls.
// Entries for a control the dialog lacks, or that ask for anything but adding a string, are passed by.
void RunDialogInitData(HWND dialog, int templateId);

}  // namespace ui
