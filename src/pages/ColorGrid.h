// The colour page's grid and what it stands for: the list font, every colour of the file list and of
// the docking windows, the rules that colour files by attribute, the six extension groups, and the
// palettes and skins the page offers beside it. The grid has no identity per property: its leaves are
// read back in the order the grid was built, so the builder and the reader share one table.
#pragma once

#include <array>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

#include "settings/ListValues.h"
#include "ui/PropertyGridModel.h"

// The grid's words from the page's five hidden labels, in the order of their controls 1401 to 1405:
// attributes, list, docking windows, extension groups, and the two top-level properties.
struct ColorGridLabels {
    std::array<std::vector<std::wstring>, 5> lists;
};

// A label list shorter than the grid needs. The grid does not make do with blank labels: the page
// ends with the framework's invalid-argument failure, as a translation that lost words is broken.
class LabelListTooShort : public std::invalid_argument {
public:
    LabelListTooShort() : std::invalid_argument("Encountered an improper argument.") {}
};

// How many leaves the grid has, and the words each label list needs at least.
constexpr int kColorGridLeaves = 38;

// Empties the grid and fills it from the values, in the grid's one order. Throws LabelListTooShort.
void BuildColorGrid(ui::PropertyGridModel& grid, const ColorGridLabels& labels, const ColorValues& values);
// Takes every leaf back into the values by its place in that order; leaves past the last are ignored.
void ReadColorGrid(const ui::PropertyGridModel& grid, ColorValues& values);

// The page's five palette buttons, in the order of their controls.
enum class ColorPalette { Default, Explorer, Black, Fd, Filmtn };
// Writes the palette's colours and switch bits into the values; system colours are read now. Neither
// the font, the extension lists, the skin nor the host's own values change.
void ApplyColorPalette(ColorValues& values, ColorPalette palette);

// The skin radio buttons stand for the host's look identifiers in an order of their own.
constexpr int kSkinRadios = 12;
// An identifier the page does not know shows as the first radio.
int SkinRadioOfLook(int32_t look);
// A radio outside the twelve stores the first radio's look.
int32_t LookOfSkinRadio(int radio);
