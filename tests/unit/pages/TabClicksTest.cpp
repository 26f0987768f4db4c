#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "pages/TabClicks.h"
#include "platform/fake/FakePlatform.h"
#include "settings/SettingsGroups.h"

#include "unit/settings/RegistryValues.h"

namespace {

const std::vector<std::wstring> kButtons = {L"Enter",      L"ダブルクリック", L"左クリック", L"右クリック",
                                            L"中クリック", L"進むボタン",     L"戻るボタン"};
const std::vector<std::wstring> kModifiers = {L"(組み合わせなし)", L"+Ctrl", L"+Shift", L"+Ctrl+Shift"};
const std::vector<std::wstring> kLabels = {L"現在のウィンドウを閉じる",
                                           L"右を閉じる",
                                           L"左を閉じる",
                                           L"全て閉じる",
                                           L"現在のウィンドウ以外を閉じる",
                                           L"タブグループを閉じる",
                                           L"タブメニューの表示",
                                           L"新しく開く",
                                           L"ここから開く",
                                           L"バックグラウンドで開く",
                                           L"ここからバックグラウンドで開く",
                                           L"貼り付け",
                                           L"最新の情報に更新",
                                           L"ナビゲートロック切り替え",
                                           L"上位階層へ移動",
                                           L"選択"};

// Each gesture's row as shown and the value under its name after a load and a store: only the sixteen
// commands survive, anything else shows and comes back as closing the tab. The host keeps 16 bits.
TEST(TabClicks, EachGestureShowsItsCommandAndWritesItUnderItsOwnName) {
    struct Case {
        const wchar_t* name;
        std::optional<int32_t> stored;  // none: never stored
        const wchar_t* row;
        const wchar_t* shown;
        int32_t written;
    };
    // clang-format off
    const Case cases[] = {
        {L"TabBarClkD",   35112,          L"ダブルクリック(組み合わせなし)", L"現在のウィンドウを閉じる", 35112},
        {L"TabBarClkDC",  std::nullopt,   L"ダブルクリック+Ctrl",          L"ここから開く",             35053},
        {L"TabBarClkDS",  0,              L"ダブルクリック+Shift",         L"選択",                     0},
        {L"TabBarClkDSC", 36200,          L"ダブルクリック+Ctrl+Shift",    L"上位階層へ移動",           36200},
        {L"TabBarClkR",   12345,          L"右クリック(組み合わせなし)",   L"現在のウィンドウを閉じる", 35112},
        {L"TabBarClkRC",  0x10000 + 35850, L"右クリック+Ctrl",             L"ナビゲートロック切り替え", 35850},
        {L"TabBarClkRS",  -1,             L"右クリック+Shift",             L"現在のウィンドウを閉じる", 35112},
        {L"TabBarClkRSC", 57637,          L"右クリック+Ctrl+Shift",        L"貼り付け",                 57637},
        {L"TabBarClkM",   std::nullopt,   L"中クリック(組み合わせなし)",   L"ナビゲートロック切り替え", 35850},
        {L"TabBarClkMC",  33301,          L"中クリック+Ctrl",              L"最新の情報に更新",         33301},
        {L"TabBarClkMS",  57600,          L"中クリック+Shift",             L"新しく開く",               57600},
        {L"TabBarClkMSC", 35055,          L"中クリック+Ctrl+Shift",        L"ここからバックグラウンドで開く", 35055},
    };
    // clang-format on
    platform::fake::FakePlatform fake;
    for (const Case& c : cases)
        if (c.stored) StoreValue(L"TabStyle", c.name, *c.stored);
    SettingsStore store;
    LoadGroup(store, SettingsGroup::TabCommon);
    ClickTable table = MakeTabClickTable(kButtons, kModifiers, kLabels);
    table.Load(store);
    ASSERT_EQ(std::size(cases), table.size());
    table.Store(store);
    SaveGroup(store, SettingsGroup::TabCommon);
    const NamedValues written = ValuesOf(L"TabStyle");
    for (size_t row = 0; row < table.size(); ++row) {
        const Case& c = cases[row];
        SCOPED_TRACE(testing::PrintToString(std::wstring(c.name)));
        EXPECT_EQ(c.row, table.Label(row));
        EXPECT_EQ(c.shown, table.ActionText(row));
        const auto found =
            std::find_if(written.begin(), written.end(), [&](const auto& v) { return v.first == c.name; });
        ASSERT_NE(written.end(), found);
        EXPECT_EQ(Stored(c.written), found->second);
    }
}

// A command outside the sixteen cannot be chosen, and the labels must be one per command.
TEST(TabClicks, OnlyTheSixteenCommandsCanBeChosen) {
    ClickTable table = MakeTabClickTable(kButtons, kModifiers, kLabels);
    EXPECT_NO_THROW(table.Set(11, 15));
    EXPECT_THROW(table.Set(11, 16), std::invalid_argument);
    EXPECT_THROW(table.Set(11, -1), std::invalid_argument);
    EXPECT_THROW(MakeTabClickTable(kButtons, kModifiers, std::vector<std::wstring>(15)), std::invalid_argument);
}

}  // namespace
