// Macro substitution: the fixed words of a script line that stand for directories, the date and
// time, places, and the item of a "for" loop. Macro names compare with case.
#pragma once

#include <cstdint>
#include <string>

#include "script/SelectionList.h"
#include "script/VariableTable.h"
#include "services/PathHelpers.h"
#include "settings/UserDirectories.h"

// An item index beyond the selection; it ends the whole run.
struct ScriptInvalidArgument {};

// Variables first, so a value holding a macro gets it expanded; then directories, dates and places;
// inside a loop (itemIndex not -1) the item macros of that item too, otherwise they stay for the launch.
void ExpandScriptText(std::wstring& text, const VariableTable& variables, const std::wstring& nowDirectory,
                      const std::wstring& targetPath, const SelectionList& selection, int32_t itemIndex, bool trim,
                      UserDirectories& directories);
// Directory, date and place macros.
void ExpandCommonMacros(const std::wstring& nowDirectory, const std::wstring& targetPath, std::wstring& text,
                        UserDirectories& directories);
// "?Date?" to "?ShellTime?": the local time, read once, in each row's wcsftime format.
void ExpandDateMacros(std::wstring& text);
// "?Drive?", "?Dir?", "?NowDir?", "?nowdir?" when a now-directory is given; then every place macro
// left is removed.
void ExpandPlaceMacros(const std::wstring& nowDirectory, const std::wstring& targetPath, std::wstring& text);
// The eleven macros of one item: its path, name and extension, directory, quoted or bare.
void ExpandItemMacros(const std::wstring& item, std::wstring& text);
// One start for all items: each item macro becomes its values of every item in turn, each followed
// by one blank.
void ExpandJoinedItemMacros(const SelectionList& items, std::wstring& text);
// The item macros taken out of the text, for a start without items.
void RemoveItemMacros(std::wstring& text);
// True when the text holds any of the eleven item macros.
bool ContainsItemMacro(const std::wstring& text);

// Cuts an item path: a letter at the start makes the first two characters of the directory part the
// drive (a relative "a\b" included); the extension runs from the last point of the file name.
PathParts SplitItemPath(const std::wstring& path);
