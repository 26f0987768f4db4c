// The grid as the keyboard walks it and as an edit marks it, without a window.
#include <gtest/gtest.h>

#include <cwchar>
#include <string>
#include <vector>

#include "ui/PropertyGridModel.h"

namespace {

using ui::GridKey;

// A: (a1, B: (b1, b2), a2), t — A open, B closed.
struct Sample {
    ui::PropertyGridModel grid;
    int a = grid.AddGroup(-1, L"A", true);
    int a1 = grid.AddColour(a, L"a1", 0x123456);
    int b = grid.AddGroup(a, L"B", false);
    int b1 = grid.AddBoolean(b, L"b1", true);
    int b2 = grid.AddText(b, L"b2", L"x");
    int a2 = grid.AddFont(a, L"a2", LogFont{});
    int t = grid.AddText(-1, L"t", L"");
};

std::wstring Shown(const ui::PropertyGridModel& grid) {
    std::wstring text;
    for (const ui::GridRow& row : grid.Rows()) {
        text += std::wstring(static_cast<size_t>(row.depth), L'.') + grid.at(row.id).name;
        if (row.id == grid.selected()) text += L"*";
        text += L" ";
    }
    return text;
}

TEST(PropertyGridModel, KeysWalkTheShownRowsAndFoldGroups) {
    struct Case {
        std::vector<GridKey> keys;
        const wchar_t* shown;
    };
    using K = GridKey;
    const Case cases[] = {
        {{K::Down}, L"A* .a1 .B .a2 t "},
        {{K::Down, K::Down, K::Down, K::Down}, L"A .a1 .B .a2* t "},
        {{K::End, K::Down}, L"A .a1 .B .a2 t* "},
        {{K::End, K::Up, K::Home}, L"A* .a1 .B .a2 t "},
        {{K::Down, K::Left}, L"A* t "},
        {{K::Down, K::Left, K::Right}, L"A* .a1 .B .a2 t "},
        {{K::Down, K::Right}, L"A .a1* .B .a2 t "},
        {{K::Down, K::Down, K::Down, K::Right}, L"A .a1 .B* ..b1 ..b2 .a2 t "},
        {{K::Down, K::Down, K::Down, K::Right, K::Right, K::Down, K::Left}, L"A .a1 .B* ..b1 ..b2 .a2 t "},
        {{K::Down, K::Down, K::Down, K::Expand, K::End, K::Up, K::PageUp}, L"A .a1 .B* ..b1 ..b2 .a2 t "},
        {{K::Down, K::PageDown}, L"A .a1 .B .a2* t "},
        {{K::Down, K::Collapse, K::Collapse}, L"A* t "},
        {{K::Down, K::Down, K::Collapse}, L"A .a1* .B .a2 t "},
    };
    for (size_t i = 0; i < std::size(cases); ++i) {
        const Case& c = cases[i];
        Sample s;
        for (GridKey key : c.keys) s.grid.OnKey(key, 4);
        EXPECT_EQ(c.shown, Shown(s.grid)) << "case " << i;
    }
}

TEST(PropertyGridModel, AValueIsMarkedWhileItDiffersFromTheOneItWasGiven) {
    Sample s;
    s.grid.SetColour(s.a1, 0xFF);
    s.grid.SetBoolean(s.b1, false);
    s.grid.SetText(s.b2, L"x");
    LogFont bold{};
    bold.lfWeight = 700;
    s.grid.SetFont(s.a2, bold);
    s.grid.SetText(s.a1, L"not a text");  // another kind: ignored
    EXPECT_EQ((std::vector{true, true, false, true}),
              (std::vector{s.grid.at(s.a1).modified, s.grid.at(s.b1).modified, s.grid.at(s.b2).modified,
                           s.grid.at(s.a2).modified}));
    EXPECT_EQ(0xFFu, s.grid.at(s.a1).colour);
    s.grid.SetColour(s.a1, 0x123456);
    EXPECT_FALSE(s.grid.at(s.a1).modified);
    // A hidden selection shows on its group; the leaves stay in the order they were added.
    s.grid.Select(s.b2);
    EXPECT_EQ(s.b, s.grid.selected());
    EXPECT_EQ((std::vector{s.a1, s.b1, s.b2, s.a2, s.t}), s.grid.Leaves());
    s.grid.Clear();
    EXPECT_EQ(-1, s.grid.selected());
    EXPECT_TRUE(s.grid.Rows().empty());
    EXPECT_FALSE(s.grid.OnKey(GridKey::Down));
}

TEST(PropertyGridModel, ValuesReadAsTheGridShowsThem) {
    LogFont font{};
    std::wcscpy(font.lfFaceName, L"Meiryo UI");
    font.lfHeight = -12;
    EXPECT_EQ(L"#563412", ui::ColourText(0x123456));
    EXPECT_EQ(L"Meiryo UI, 9pt", ui::FontText(font, 96));
    EXPECT_EQ(L"Meiryo UI, 6pt", ui::FontText(font, 144));
    font.lfHeight = 0;
    EXPECT_EQ(L"Meiryo UI", ui::FontText(font, 96));
}

}  // namespace
