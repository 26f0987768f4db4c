// Starting the program of a "run" or "shell" line for the selection, and the program of one
// "exrun" entry for one item.
#pragma once

#include <cstdint>
#include <string>

#include "script/SelectionList.h"

// The run options a start is made with.
struct LaunchSettings {
    int32_t mode = 0;
    uint32_t show = 1;
    uint32_t timeout = 0xFFFFFFFF;
    // Slept after the starts, when not 0.
    uint32_t waitTime = 0;
};

// Starts the program once, or once per item when the argument text holds item macros (once for all
// of them with multi). Shift held down drops the argument text when shiftSilent is set; an argument
// text of a single line feed starts nothing.
void LaunchRun(const std::wstring& program, const SelectionList& selection, const std::wstring& directory,
               bool shiftSilent, std::wstring argumentText, bool multi, const LaunchSettings& settings);

// Starts the entry's program for the item when its filter takes the item and its argument text
// names the item. Program alternatives separated by "|" are offered to the user. True when the
// item has been dealt with (started, or the choice cancelled) and no later entry is to be tried.
bool LaunchExRunEntry(const std::wstring& program, const std::wstring& item, const std::wstring& directory,
                      const std::wstring& argumentText, const std::wstring& filter, const LaunchSettings& settings);
