// The translation step every dialog takes last in its OnInitDialog: the dialog's text file in the
// language in force is applied to its controls, or written from them when there is none yet.
#pragma once

#include <windows.h>

class DialogLanguage;

namespace ui {

// dialogId: the dialog's resource id, which names its file. language: the process's one instance.
void LocaliseDialog(HWND dialog, int dialogId, DialogLanguage& language);

}  // namespace ui
