// The context menu page: twelve checks, four for each place a menu opens (an item selected in the
// list, nothing selected, an item of the folder bar). Check n is bit n of ContextMenu.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

constexpr int kContextMenuPlaces = 3;
constexpr int kContextMenuChecksPerPlace = 4;
using ContextMenuChecks = std::array<bool, kContextMenuPlaces * kContextMenuChecksPerPlace>;

ContextMenuChecks ChecksOfContextMenu(int32_t contextMenu);
// The twelve bits set from the checks; the bits above them stay as they were.
int32_t ContextMenuWithChecks(int32_t contextMenu, const ContextMenuChecks& checks);

// Which checks may be changed. In each place: the shell's items go on top only when both the extra
// and the shell's items are shown, and the extended items need the shell's items.
ContextMenuChecks EnabledContextMenuChecks(const ContextMenuChecks& ticked);
