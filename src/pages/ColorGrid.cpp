#include "pages/ColorGrid.h"

#include <algorithm>

#include "platform/Platform.h"

namespace {

using V = ColorValues;

enum class Leaf { Font, Colour, Switch, InvertedSwitch, Text };

struct LeafRow {
    Leaf kind;
    int32_t V::*colour = nullptr;
    uint32_t bit = 0;
    std::wstring V::*text = nullptr;
};

constexpr LeafRow Colour(int32_t V::*member) {
    return {Leaf::Colour, member};
}
constexpr LeafRow Switch(uint32_t bit) {
    return {Leaf::Switch, nullptr, bit};
}
// A rule that colours a kind of file: the grid ticks "colour it", the value's bit means "do not".
constexpr LeafRow Rule(uint32_t bit) {
    return {Leaf::InvertedSwitch, nullptr, bit};
}
constexpr LeafRow Text(std::wstring V::*member) {
    return {Leaf::Text, nullptr, 0, member};
}

// clang-format off
// The grid's leaves in the order the builder adds them.
const LeafRow kLeaves[kColorGridLeaves] = {
    {Leaf::Font}, Switch(kGradient),
    Colour(&V::Color1), Colour(&V::Color2), Colour(&V::Color3), Colour(&V::Color4), Colour(&V::Color5),
    Rule(kNoCompressedColour), Colour(&V::Color6),
    Rule(kNoEncryptedColour), Colour(&V::Color10),
    Rule(kNoNewColour), Colour(&V::Color11),
    Rule(kNoFakeColour), Colour(&V::Color12),
    Colour(&V::Color13),
    Colour(&V::Color15), Colour(&V::Color16),
    Colour(&V::Color8), Colour(&V::Color9),
    Colour(&V::Color26), Colour(&V::Color27),
    Colour(&V::Color25), Colour(&V::Color7), Colour(&V::Color24), Switch(kActiveBackground),
    Colour(&V::Color17), Text(&V::Ex1), Colour(&V::Color18), Text(&V::Ex2),
    Colour(&V::Color19), Text(&V::Ex3), Colour(&V::Color20), Text(&V::Ex4),
    Colour(&V::Color21), Text(&V::Ex5), Colour(&V::Color22), Text(&V::Ex6),
};
// clang-format on

enum LabelList { kAttributes, kList, kDocking, kExtensions, kTopLevel };

const std::wstring& Label(const ColorGridLabels& labels, LabelList list, size_t index) {
    const std::vector<std::wstring>& parts = labels.lists[list];
    if (index >= parts.size()) throw LabelListTooShort();
    return parts[index];
}

// Adds the grid's leaves in turn, each from its row of the table.
class Builder {
public:
    Builder(ui::PropertyGridModel& grid, const V& values) : grid_(grid), values_(values) {}

    void Add(int parent, const std::wstring& name) {
        if (next_ >= std::size(kLeaves)) return;
        const LeafRow& row = kLeaves[next_++];
        const uint32_t bits = static_cast<uint32_t>(values_.Color);
        switch (row.kind) {
            case Leaf::Font:
                grid_.AddFont(parent, name, values_.ViewFont);
                break;
            case Leaf::Colour:
                grid_.AddColour(parent, name, static_cast<uint32_t>(values_.*row.colour));
                break;
            case Leaf::Switch:
                grid_.AddBoolean(parent, name, (bits & row.bit) != 0);
                break;
            case Leaf::InvertedSwitch:
                grid_.AddBoolean(parent, name, (bits & row.bit) == 0);
                break;
            case Leaf::Text:
                grid_.AddText(parent, name, values_.*row.text);
                break;
        }
    }

private:
    ui::PropertyGridModel& grid_;
    const V& values_;
    size_t next_ = 0;
};

void StoreLeaf(const LeafRow& row, const ui::Property& property, V& values) {
    uint32_t bits = static_cast<uint32_t>(values.Color);
    switch (row.kind) {
        case Leaf::Font:
            values.ViewFont = property.font;
            return;
        case Leaf::Colour:
            values.*row.colour = static_cast<int32_t>(property.colour);
            return;
        case Leaf::Switch:
        case Leaf::InvertedSwitch:
            if (property.check != (row.kind == Leaf::InvertedSwitch)) {
                bits |= row.bit;
            } else {
                bits &= ~row.bit;
            }
            values.Color = static_cast<int32_t>(bits);
            return;
        case Leaf::Text:
            values.*row.text = property.text;
            return;
    }
}

}  // namespace

void BuildColorGrid(ui::PropertyGridModel& grid, const ColorGridLabels& labels, const V& values) {
    grid.Clear();
    Builder add(grid, values);
    auto label = [&](LabelList list, size_t index) { return Label(labels, list, index); };
    add.Add(-1, label(kTopLevel, 0));
    add.Add(-1, label(kTopLevel, 1));

    const int attributes = grid.AddGroup(-1, label(kAttributes, 0), true);
    for (size_t index = 1; index <= 5; ++index) add.Add(attributes, label(kAttributes, index));
    // Compressed, encrypted, new and camouflaged files: whether to colour them, and in what.
    for (size_t index : {6, 7, 8, 9}) {
        const int rule = grid.AddGroup(attributes, label(kAttributes, index), false);
        add.Add(rule, label(kAttributes, 12));
        add.Add(rule, label(kAttributes, 13));
    }
    const int search = grid.AddGroup(attributes, label(kAttributes, 10), false);
    add.Add(search, label(kAttributes, 13));

    const int list = grid.AddGroup(-1, label(kList, 0), true);
    for (size_t group : {1, 4, 7}) {
        const int sub = grid.AddGroup(list, label(kList, group), false);
        add.Add(sub, label(kList, group + 1));
        add.Add(sub, label(kList, group + 2));
    }

    const int docking = grid.AddGroup(-1, label(kDocking, 0), true);
    for (size_t index = 1; index <= 4; ++index) add.Add(docking, label(kDocking, index));

    const int extensions = grid.AddGroup(-1, label(kExtensions, 0), true);
    for (int number = 1; number <= 6; ++number) {
        const int group = grid.AddGroup(extensions, label(kExtensions, 1) + std::to_wstring(number), false);
        add.Add(group, label(kExtensions, 2));
        add.Add(group, label(kExtensions, 3));
    }
}

void ReadColorGrid(const ui::PropertyGridModel& grid, V& values) {
    int counter = 0;
    for (int id : grid.Leaves()) {
        if (counter < kColorGridLeaves) StoreLeaf(kLeaves[counter], grid.at(id), values);
        ++counter;
    }
}

namespace {

// A palette cell: a colour, or the system colour of an index read at the press.
constexpr uint32_t kSystem = 0x40000000;
constexpr uint32_t Sys(int index) {
    return kSystem | static_cast<uint32_t>(index);
}
constexpr int kWindow = 5, kWindowText = 8, kHighlight = 13, kHighlightText = 14, kButtonFace = 15, kButtonText = 18,
              k3dLight = 22;

struct PaletteRow {
    int32_t V::*member;
    uint32_t cells[5];  // Default, Explorer, Black, FD, FILMTN
};

// clang-format off
const PaletteRow kPalettes[] = {
    {&V::Color1,  {0x000000,        Sys(kWindowText),    0xFFFFFF, 0xFFFFFF, 0x00FFFF}},
    {&V::Color2,  {0x008000,        Sys(kWindowText),    0x00FF00, 0x00FF00, 0x00FF00}},
    {&V::Color3,  {0x800000,        Sys(kWindowText),    0xFF575D, 0xFF575D, 0xFF575D}},
    {&V::Color4,  {0x800080,        Sys(kWindowText),    0xFF00FF, 0xFF00FF, 0xFF00FF}},
    {&V::Color5,  {0x808000,        Sys(kWindowText),    0xFFFF00, 0xFFFF00, 0xFFFF00}},
    {&V::Color6,  {0xFF0000,        0xFF0000,            0xFF8080, 0xFF8080, 0xFF8080}},
    {&V::Color7,  {Sys(kWindow),    Sys(kWindow),        0x000000, 0x400000, 0x600000}},
    {&V::Color8,  {Sys(kHighlightText), Sys(kHighlightText), 0xFFFFFF, 0xFFFFFF, 0xFFFFFF}},
    {&V::Color9,  {Sys(kHighlight), Sys(kHighlight), Sys(kHighlight), Sys(kHighlight), Sys(kHighlight)}},
    {&V::Color10, {0x7F7F7F,        0x7F7F7F,            0x7F7F7F, 0x7F7F7F, 0x7F7F7F}},
    {&V::Color11, {0x0000FF,        0x0000FF,            0x0000FF, 0x0000FF, 0x0000FF}},
    {&V::Color12, {0x007FFF,        0x007FFF,            0x007FFF, 0x007FFF, 0x007FFF}},
    {&V::Color13, {0x1F1FFF,        0x1F1FFF,            0x1F1FFF, 0x1F1FFF, 0x1F1FFF}},
    {&V::Color15, {Sys(kWindow),    Sys(kWindow),        0x000000, 0x400000, 0x600000}},
    {&V::Color16, {0xF0F0F0,        Sys(kWindow),        0x3C3C3C, 0x601C1C, 0x603C3C}},
    {&V::Color17, {0x7F3F00,        0x7F3F00,            0x7FFFFF, 0x00FFFF, 0xFFFFFF}},
    {&V::Color18, {0x3F7F00,        0x3F7F00,            0x3F7F00, 0x3F7F00, 0x3F7F00}},
    {&V::Color19, {0x007F7F,        0x007F7F,            0x007F7F, 0x007F7F, 0x007F7F}},
    {&V::Color20, {0x3F1F00,        0x3F1F00,            0x3F1F00, 0x3F1F00, 0x3F1F00}},
    {&V::Color21, {0x1F3F00,        0x1F3F00,            0x1F3F00, 0x1F3F00, 0x1F3F00}},
    {&V::Color22, {0x003F3F,        0x003F3F,            0x003F3F, 0x003F3F, 0x003F3F}},
    {&V::Color24, {Sys(k3dLight),   Sys(k3dLight),       0x3C3C3C, 0x601C1C, 0x603C3C}},
    {&V::Color25, {Sys(kWindowText), Sys(kWindowText),   0xFFFFFF, 0xFFFFFF, 0x00FFFF}},
    {&V::Color26, {Sys(kButtonText), Sys(kButtonText), Sys(kButtonText), Sys(kButtonText), Sys(kButtonText)}},
    {&V::Color27, {Sys(kButtonFace), Sys(kButtonFace), Sys(kButtonFace), Sys(kButtonFace), Sys(kButtonFace)}},
};
// clang-format on

constexpr int32_t kPaletteSwitches[] = {49, 20, 62, 62, 62};

constexpr int32_t kLooks[kSkinRadios] = {33204, 33205, 33207, 33219, 33209, 33210,
                                         33206, 33208, 33215, 33216, 33217, 33218};

}  // namespace

void ApplyColorPalette(V& values, ColorPalette palette) {
    const auto column = static_cast<size_t>(palette);
    if (column >= std::size(kPaletteSwitches)) return;
    values.Color = kPaletteSwitches[column];
    for (const PaletteRow& row : kPalettes) {
        const uint32_t cell = row.cells[column];
        values.*row.member = (cell & kSystem)
                                 ? platform::Current().environment.SysColor(static_cast<int32_t>(cell & ~kSystem))
                                 : static_cast<int32_t>(cell);
    }
}

int SkinRadioOfLook(int32_t look) {
    const auto found = std::find(std::begin(kLooks), std::end(kLooks), look);
    return found == std::end(kLooks) ? 0 : static_cast<int>(found - std::begin(kLooks));
}

int32_t LookOfSkinRadio(int radio) {
    return radio >= 0 && radio < kSkinRadios ? kLooks[radio] : kLooks[0];
}
