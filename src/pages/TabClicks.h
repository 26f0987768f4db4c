// What a double, right or middle click on a tab runs, by modifier. Each gesture stores the host's
// command number; only the sixteen commands below can be chosen, their labels coming from the page.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "pages/ClickTable.h"

// The commands in the order of the page's labels; 0 only selects the tab.
inline constexpr std::array<int32_t, 16> kTabClickCommands = {
    35112, 35106, 35107, 35111, 35108, 35105, 35860, 57600, 35053, 35054, 35055, 57637, 33301, 35850, 36200, 0,
};

// The twelve gestures as three groups (double, right, middle click), named by the parts of the
// option dialog's button names they take, each in the modifier order none, Ctrl, Shift, Ctrl+Shift.
std::vector<ClickGroup> TabClickGroups(const std::vector<std::wstring>& buttonNames);

// The table of the twelve gestures over the command labels, which must be one per command.
ClickTable MakeTabClickTable(const std::vector<std::wstring>& buttonNames,
                             const std::vector<std::wstring>& modifierNames, std::vector<std::wstring> commandLabels);
