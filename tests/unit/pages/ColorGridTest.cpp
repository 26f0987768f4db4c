#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "pages/ColorGrid.h"
#include "platform/fake/FakePlatform.h"
#include "settings/SettingsGroups.h"
#include "settings/SettingsStore.h"

namespace {

using platform::fake::FakePlatform;
using V = ColorValues;

std::vector<std::wstring> Split(const std::wstring& text) {
    std::vector<std::wstring> parts(1);
    for (wchar_t c : text) {
        if (c == L'/') {
            parts.emplace_back();
        } else {
            parts.back().push_back(c);
        }
    }
    return parts;
}

ColorGridLabels JapaneseLabels() {
    return {
        {Split(L"属性による色分け/属性なし/読み取り専用/隠し/システム/フォルダー/圧縮/暗号/新しいファイル/偽装ファイル/"
               L"ディレクトリ内検索/予備/色分けする/色"),
         Split(L"リスト/背景色/通常色/格子色/フォーカス（アクティブ）/文字色/背景色/フォーカス（非アクティブ）/文字色/"
               L"背景色"),
         Split(L"ドッキングウィンドウ/テキスト/背景色/背景色（アクティブ）/アクティブ背景色を使用"),
         Split(L"拡張子色分け/グループ/色/拡張子"), Split(L"フォント/グラデーション描画する")}};
}

int32_t V::*const kColours[] = {
    &V::Color1,  &V::Color2,  &V::Color3,  &V::Color4,  &V::Color5,  &V::Color6,  &V::Color7,  &V::Color8,  &V::Color9,
    &V::Color10, &V::Color11, &V::Color12, &V::Color13, &V::Color15, &V::Color16, &V::Color17, &V::Color18, &V::Color19,
    &V::Color20, &V::Color21, &V::Color22, &V::Color24, &V::Color25, &V::Color26, &V::Color27};
std::wstring V::*const kExtensions[] = {&V::Ex1, &V::Ex2, &V::Ex3, &V::Ex4, &V::Ex5, &V::Ex6};

// Every colour, extension list and the font different from each other and from the other values.
void Distinct(V& values, int seed) {
    for (size_t i = 0; i < std::size(kColours); ++i) values.*kColours[i] = seed * 1000 + static_cast<int32_t>(i);
    for (size_t i = 0; i < std::size(kExtensions); ++i)
        values.*kExtensions[i] = std::to_wstring(seed) + L"ext" + std::to_wstring(i);
    values.ViewFont.lfHeight = -seed;
    values.ViewFont.lfFaceName[0] = static_cast<wchar_t>(L'A' + seed);
}

TEST(ColorGrid, TheLeafWalkGivesBackWhatTheGridWasBuiltFrom) {
    for (int32_t bits : {0, 63, 49, 0b010101, 0b101010, 0x7FFFFFC0}) {
        SCOPED_TRACE(bits);
        V put, back;
        Distinct(put, 1);
        Distinct(back, 2);
        put.Color = bits;
        back.Color = ~bits;
        ui::PropertyGridModel grid;
        BuildColorGrid(grid, JapaneseLabels(), put);
        ASSERT_EQ(38u, grid.Leaves().size());
        ReadColorGrid(grid, back);
        for (auto member : kColours) EXPECT_EQ(put.*member, back.*member);
        for (auto member : kExtensions) EXPECT_EQ(put.*member, back.*member);
        EXPECT_EQ(put.ViewFont.lfHeight, back.ViewFont.lfHeight);
        EXPECT_EQ(put.ViewFont.lfFaceName[0], back.ViewFont.lfFaceName[0]);
        // Bits the grid does not show keep what was stored before.
        EXPECT_EQ(static_cast<uint32_t>(bits) & 63, static_cast<uint32_t>(back.Color) & 63);
        EXPECT_EQ(~static_cast<uint32_t>(bits) & ~63u, static_cast<uint32_t>(back.Color) & ~63u);
    }
}

TEST(ColorGrid, AShortLabelListFailsAndALongOneIsTakenAsFarAsNeeded) {
    for (size_t list = 0; list < 5; ++list) {
        ColorGridLabels labels = JapaneseLabels();
        labels.lists[list].pop_back();
        ui::PropertyGridModel grid;
        EXPECT_THROW(BuildColorGrid(grid, labels, V{}), LabelListTooShort) << list;
        labels.lists[list].push_back(L"last");
        labels.lists[list].push_back(L"extra");
        EXPECT_NO_THROW(BuildColorGrid(grid, labels, V{})) << list;
    }
    ColorGridLabels reserved = JapaneseLabels();
    reserved.lists[0][11] = L"anything";
    ui::PropertyGridModel grid;
    BuildColorGrid(grid, reserved, V{});
    for (int id = 0; id < grid.size(); ++id) EXPECT_NE(L"anything", grid.at(id).name);
}

TEST(ColorGrid, ThePalettesWriteTheirColumnAndLeaveTheRestAlone) {
    FakePlatform fake;
    auto sys = [](int index) { return 0x0A0B00 + index; };  // the fake system's colours
    SettingsStore defaults;
    LoadGroup(defaults, SettingsGroup::Colors);
    struct Case {
        ColorPalette palette;
        int32_t color, c1, c2, c7, c9, c16, c17, c24, c27;
    };
    const Case cases[] = {
        {ColorPalette::Default, 49, 0, 0x008000, sys(5), sys(13), 0xF0F0F0, 0x7F3F00, sys(22), sys(15)},
        {ColorPalette::Explorer, 20, sys(8), sys(8), sys(5), sys(13), sys(5), 0x7F3F00, sys(22), sys(15)},
        {ColorPalette::Black, 62, 0xFFFFFF, 0x00FF00, 0, sys(13), 0x3C3C3C, 0x7FFFFF, 0x3C3C3C, sys(15)},
        {ColorPalette::Fd, 62, 0xFFFFFF, 0x00FF00, 0x400000, sys(13), 0x601C1C, 0x00FFFF, 0x601C1C, sys(15)},
        {ColorPalette::Filmtn, 62, 0x00FFFF, 0x00FF00, 0x600000, sys(13), 0x603C3C, 0xFFFFFF, 0x603C3C, sys(15)},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(static_cast<int>(c.palette));
        V values;
        Distinct(values, 4);
        values.ApplicationLook = 33216;
        values.s00 = 7;
        const V before = values;
        ApplyColorPalette(values, c.palette);
        EXPECT_EQ((std::vector{c.color, c.c1, c.c2, c.c7, c.c9, c.c16, c.c17, c.c24, c.c27}),
                  (std::vector{values.Color, values.Color1, values.Color2, values.Color7, values.Color9, values.Color16,
                               values.Color17, values.Color24, values.Color27}));
        if (c.palette == ColorPalette::Explorer) {
            EXPECT_EQ((std::vector<int32_t>(5, sys(8))),
                      (std::vector{values.Color1, values.Color2, values.Color3, values.Color4, values.Color5}));
        }
        if (c.palette >= ColorPalette::Black) {
            EXPECT_EQ(values.Color1, values.Color25);
            EXPECT_EQ(values.Color16, values.Color24);
        }
        if (c.palette == ColorPalette::Default) {
            for (auto member : kColours) EXPECT_EQ(defaults.*member, values.*member);
        }
        for (auto member : kExtensions) EXPECT_EQ(before.*member, values.*member);
        EXPECT_EQ(before.ViewFont.lfHeight, values.ViewFont.lfHeight);
        EXPECT_EQ(33216, values.ApplicationLook);
        EXPECT_EQ(7, values.s00);
    }
}

TEST(ColorGrid, SkinRadiosAndLooksMapBothWays) {
    const int32_t looks[] = {33204, 33205, 33207, 33219, 33209, 33210, 33206, 33208, 33215, 33216, 33217, 33218};
    for (int radio = 0; radio < kSkinRadios; ++radio) {
        EXPECT_EQ(looks[radio], LookOfSkinRadio(radio));
        EXPECT_EQ(radio, SkinRadioOfLook(looks[radio]));
    }
    for (int32_t unknown : {33211, 0, -1, 33220}) EXPECT_EQ(0, SkinRadioOfLook(unknown)) << unknown;
    for (int outside : {-1, 12, 1000}) EXPECT_EQ(33204, LookOfSkinRadio(outside)) << outside;
}

}  // namespace
