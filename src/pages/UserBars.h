// The user bars: nine slots, each a name and a folder under the user's "Bar" folder whose scripts are
// the bar's items, one style for all of them, and what a click or Enter on an item does.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "pages/ClickTable.h"
#include "settings/SettingsStore.h"

namespace platform {
class FileSystem;
}

// The two checks the one Style value holds. Multiple selection only goes with the list: without the
// list the style is written as 4, which reads back with multiple selection off.
struct BarStyle {
    int32_t list = 0;
    int32_t multiSelect = 1;
};
BarStyle DecodeBarStyle(int32_t style);
int32_t EncodeBarStyle(const BarStyle& style);

// What the slot list shows of a bar. The width only shows for a bar with both a name and a folder,
// so an empty slot has an empty width, whatever was read for it.
struct SlotCells {
    std::wstring number, name, dir, width;
    bool operator==(const SlotCells&) const = default;
};
SlotCells SlotCellsOf(size_t slot, const UserBar& bar);
// The bar the cells make: an empty width cell gives a bar without a width, which Apply leaves unwritten.
UserBar BarOfCells(const std::wstring& name, const std::wstring& dir, const std::wstring& width);

// The folder of a bar, which the user makes; the slot editor only checks that it is there.
std::wstring BarFolder(const std::wstring& userDirectory, const std::wstring& dir);
// The slot editor's checks after the width's range: 0 when the slot may be kept, else the number of
// the message that refuses it (nothing named, or no such folder; a plain file of the name passes).
uint16_t SlotRefusal(platform::FileSystem& files, const std::wstring& userDirectory, const std::wstring& name,
                     const std::wstring& dir);

// Gives every bar with a folder its icon "<folder>.ico", copied from the program's template the first
// time only: an icon already there is the user's and stays. A copy that fails stops nothing.
void CopyBarIcons(platform::FileSystem& files, const std::wstring& programDirectory, const std::wstring& userDirectory,
                  std::span<const UserBar> bars);

// What a click on a bar's item does: Enter, left and middle click, each with the four modifiers, named
// by the parts of the option dialog's button names they take. Each stores its action's place among
// the ten action labels of the page.
constexpr size_t kUserBarActions = 10;
std::vector<ClickGroup> UserBarClickGroups(const std::vector<std::wstring>& buttonNames);
ClickTable MakeUserBarClickTable(const std::vector<std::wstring>& buttonNames,
                                 const std::vector<std::wstring>& modifierNames, std::vector<std::wstring> actions);
