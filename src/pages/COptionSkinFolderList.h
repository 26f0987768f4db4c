// The list of installed skin folders that the skin and animation pages share: the folders of a root
// in the order the disk gives them, the current one selected, and its readme shown beside.
#pragma once

#include <windows.h>

#include <string>

#include "ui/ListBox.h"

// Fills the list with the folders of root, selects the first that begins with current and shows its
// readme in the edit.
void FillSkinList(const ui::ListBox& list, const std::wstring& root, const std::wstring& current, HWND readme);
// Shows the readme of the selected folder of root in the edit; empty without a selection.
void ShowSkinReadme(const ui::ListBox& list, const std::wstring& root, HWND readme);
