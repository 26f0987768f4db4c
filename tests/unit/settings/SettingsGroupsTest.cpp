#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/fake/FakePlatform.h"
#include "services/Format.h"
#include "settings/SettingsGroups.h"
#include "settings/SettingsStore.h"

#include "unit/settings/GroupRoundTrip.h"
#include "unit/settings/RegistryValues.h"

namespace {

using platform::fake::FakePlatform;
using S = SettingsStore;

TEST(SettingsGroups, WhatAGroupWritesItReadsBackWhateverTheHostStoredThere) {
    FakePlatform fake;
    ExpectEveryGroupWritesBackWhatTheHostStored();
}

std::optional<Stored> Named(const NamedValues& values, const std::wstring& wanted) {
    for (const auto& [name, value] : values)
        if (name == wanted) return value;
    return std::nullopt;
}

// Values whose page shows what the host stored, and where Apply may or may not write the page's value.
TEST(SettingsGroups, ValuesTheHostOwnsAreReadAndNeverWritten) {
    struct Case {
        SettingsGroup group;
        const wchar_t* section;
        const wchar_t* name;  // as the host spells it
        int32_t S::*integer;
        std::wstring S::*text;
        bool saved;
    };
    using G = SettingsGroup;
    // clang-format off
    const Case cases[] = {
        {G::General,      L"AppInfo",    L"ListReserveVal",   &S::ListReserveVal,   nullptr,              false},
        {G::General,      L"Settings",   L"IME",              &S::IME,              nullptr,              true},
        {G::General,      L"AppInfo",    L"CasheExCmd",       &S::CasheExCmd,       nullptr,              true},
        {G::StartUp,      L"AppInfo",    L"Alfa",             &S::Alfa,             nullptr,              false},
        {G::IncrementalSearch, L"AppInfo", L"IncliMentTime",  &S::IncliMentTime,    nullptr,              true},
        {G::Network,      L"AppInfo",    L"NoNetwork",        &S::NoNetwork,        nullptr,              false},
        {G::VersionCheck, L"AppInfo",    L"VersionCheckTime", nullptr,              &S::VersionCheckTime, false},
        {G::Other,        L"Settings",   L"NLS",              nullptr,              &S::NLS,              false},
        {G::Other,        L"Settings",   L"EveryFront",       &S::EveryFront,       nullptr,              true},
        {G::KeyPage,      L"Settings",   L"CheckMode",        &S::CheckMode,        nullptr,              false},
        {G::Sound,        L"Sound",      L"SoundGuestureGo",  nullptr,              &S::SoundGuestureGo,  true},
        {G::ListInitial,  L"TreeInfo",   L"InsideTreeWidth",  &S::InsideTreeWidth,  nullptr,              false},
        {G::ListInitial,  L"TreeInfo",   L"InitShowInsideTree", &S::InitShowInsideTree, nullptr,          true},
        {G::ListStyle,    L"ListDraw",   L"HiddenItem",       &ListDrawValues::HiddenItem, nullptr,       true},
        {G::AutoUpdate,   L"ListAction", L"AutoUpdateLocal",  &S::AutoUpdateLocal,  nullptr,              false},
        {G::ListClicks,   L"ListMouse",  L"DropCreateDir",    &S::DropCreateDir,    nullptr,              false},
        {G::ListClicks,   L"ListMouse",  L"AltWheel",         &S::AltWheel,         nullptr,              false},
        {G::Colors,       L"Color",      L"s03",              &S::s03,              nullptr,              false},
        {G::Tree,         L"TreeInfo",   L"ToolBar",          &TreeInfoValues::ToolBar, nullptr,          false},
        {G::TabBar,       L"TabStyle",   L"Caption",          &TabStyleValues::Caption, nullptr,          false},
        {G::PreView,      L"PreView",    L"EventType",        &S::EventType,        nullptr,              false},
        {G::Recent,       L"Recent",     L"Caption",          &RecentValues::Caption, nullptr,            false},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(c.name)));
        const Stored host = c.integer ? Stored(700001) : Stored(L"host");
        const Stored page = c.integer ? Stored(700002) : Stored(L"page");
        FakePlatform fake;
        SettingsStore empty;
        LoadAndSave(empty, c.group);
        EXPECT_EQ(c.saved, Named(ValuesOf(c.section), c.name).has_value()) << "created on an empty registry";

        StoreValue(c.section, c.name, host);
        SettingsStore store;
        LoadAndSave(store, c.group, [&] {
            EXPECT_EQ(host, c.integer ? Stored(store.*c.integer) : Stored(store.*c.text)) << "the page shows it";
            if (c.integer)
                store.*c.integer = std::get<int32_t>(page);
            else
                store.*c.text = std::get<std::wstring>(page);
        });
        EXPECT_EQ(c.saved ? page : host, Named(ValuesOf(c.section), c.name));
    }
}

// Load over what was stored, the user's change, Apply: the values named (nullopt: absent).
TEST(SettingsGroups, ApplyWritesWhatTheHostReads) {
    using Named = std::pair<std::wstring, std::optional<Stored>>;
    struct Case {
        const char* label;
        SettingsGroup group;
        const wchar_t* section;
        NamedValues stored;
        std::function<void(SettingsStore&)> user;
        std::vector<Named> found;
    };
    auto roots = [](int count) {
        NamedValues values;
        for (int n = 0; n < count; ++n)
            values.emplace_back(L"TopNode" + std::to_wstring(n), L"root " + std::to_wstring(n));
        return values;
    };
    auto nothing = [](SettingsStore&) {};
    using G = SettingsGroup;
    // clang-format off
    const Case cases[] = {
        {"thumbnail bits: the default becomes 6", G::Thumb, L"Thumb", {}, nothing,
         {{L"Thumb", 6}, {L"ImgSizeBase", 128}}},
        {"base size defaults to the size read before it", G::Thumb, L"Thumb", {{L"ImgSize2", 96}}, nothing,
         {{L"ImgSizeBase", 96}}},
        {"status checks: -1 becomes 7", G::ListStatus, L"ListDraw", {{L"ListCtrls", -1}}, nothing,
         {{L"ListCtrls", 7}}},
        {"the page knows one flag of the list style", G::ListStyle, L"ListDraw", {{L"ListViewOtherStyle", 5}},
         nothing, {{L"ListViewOtherStyle", 4}}},
        {"context menu: zero resets the upper bits", G::ContextMenu, L"Mouse", {{L"ContextMenu", 0}}, nothing,
         {{L"ContextMenu", 0x33333000}}},
        {"context menu: upper bits dropped, bit 12 no check", G::ContextMenu, L"Mouse",
         {{L"ContextMenu", 0x7ABCDA5C}}, [](S& s) { s.ContextMenu |= 0x1000; }, {{L"ContextMenu", 0x33333A5C}}},
        {"a tab click command is 16 bits", G::TabCommon, L"TabStyle", {{L"TabBarClkMS", 0x12345}}, nothing,
         {{L"TabBarClkMS", 0x2345}, {L"TabBarClkD", 35112}}},
        {"colours the system gives by default", G::Colors, L"Color", {}, nothing,
         {{L"7", 0x0A0B05}, {L"27", 0x0A0B0F}, {L"Color", 49}, {L"14", std::nullopt}, {L"s00", std::nullopt}}},
        {"the background image name is trimmed", G::Skin, L"Settings", {{L"BkImgName", L" \tsky.bmp  "}}, nothing,
         {{L"BkImgName", L"sky.bmp"}, {L"BkAlpha", 128}}},
        {"no roots: the default one", G::Tree, L"TreeInfo", {}, nothing,
         {{L"TopNode0", L"B4BFCC3A-DB2C-424C-B029-7FE99A87C641"}, {L"TopNode1", L""}, {L"Caption", std::nullopt}}},
        {"31 roots: 30 are read and the end mark covers the last", G::Tree, L"TreeInfo", roots(31), nothing,
         {{L"TopNode29", L"root 29"}, {L"TopNode30", L""}}},
        {"an emptied root list: an empty first root", G::Tree, L"TreeInfo", roots(2), [](S& s) { s.TopNode.clear(); },
         {{L"TopNode0", L""}, {L"TopNode1", L"root 1"}}},
        {"a shorter list hides its old tail", G::AutoUpdate, L"ListNoUpdate",
         {{L"0", L"a"}, {L"1", L"b"}, {L"2", L"c"}, {L"3", L"d"}}, [](S& s) { s.ListNoUpdate = {L"x"}; },
         {{L"0", L"x"}, {L"1", L""}, {L"2", L"c"}, {L"3", L"d"}}},
        {"the list stops at the first empty value", G::AutoUpdate, L"ListNoUpdate",
         {{L"0", L"a"}, {L"1", L""}, {L"2", L"c"}}, [](S& s) { s.ListNoUpdate.push_back(L"y"); },
         {{L"0", L"a"}, {L"1", L"y"}, {L"2", L""}}},
        {"nine bars, 100 wide", G::UserBar, L"Bar", {}, nothing,
         {{L"Name_08", L""}, {L"Width_00", 100}, {L"Style", 7}, {L"Name_09", std::nullopt}}},
        {"folders: the key is written anew", G::FolderInfo, L"FolderInfo", {{L"C:\\a", L"s1"}, {L"C:\\b", L"s2"}},
         [](S& s) { s.FolderInfo.erase(s.FolderInfo.begin()); },
         {{L"C:\\a", std::nullopt}, {L"C:\\b", L"s2"}}},
        {"patterns: the end mark shortens, older rows stay", G::FolderInfoEx, L"FolderInfoEx",
         {{L"wp000", L"*a"}, {L"ws000", L"A"}, {L"wp001", L"*b"}, {L"ws001", L"B"}, {L"rp000", L"x"}},
         [](S& s) { s.WildPaths.pop_back(); },
         {{L"wp000", L"*a"}, {L"wp001", L""}, {L"ws001", L""}, {L"rs000", L""}, {L"rp001", L""}}},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.label);
        FakePlatform fake;
        for (const auto& [name, value] : c.stored) StoreValue(c.section, name, value);
        SettingsStore store;
        LoadAndSave(store, c.group, [&] { c.user(store); });
        const NamedValues after = ValuesOf(c.section);
        for (const auto& [name, value] : c.found)
            EXPECT_EQ(value, ::Named(after, name)) << testing::PrintToString(name);
    }
}

// Loads that only the pages see: the lists as read, the fonts built, the defaults that differ by bar.
TEST(SettingsGroups, LoadGivesThePagesWhatTheHostStored) {
    FakePlatform fake;
    NamedValues patterns;
    for (int n = 0; n <= 21; ++n) {
        patterns.emplace_back(crt::Format(L"wp%03d", n), L"*" + std::to_wstring(n));
        patterns.emplace_back(crt::Format(L"rp%03d", n), L"re" + std::to_wstring(n));
    }
    for (const auto& [name, value] : patterns) StoreValue(L"FolderInfoEx", name, value);
    StoreValue(L"ViewFont", L"Point", -12);
    StoreValue(L"TreeInfo", L"TopNode0", L"only");
    SettingsStore store(144);
    for (SettingsGroup group : {SettingsGroup::FolderInfoEx, SettingsGroup::ViewFont, SettingsGroup::Tree,
                                SettingsGroup::TabBar, SettingsGroup::PreView, SettingsGroup::Recent})
        LoadGroup(store, group);
    EXPECT_EQ(20u, store.WildPaths.size());
    EXPECT_EQ(10u, store.RegexPaths.size());
    EXPECT_EQ((PathState{L"re9", L""}), store.RegexPaths.back());
    EXPECT_EQ((std::vector<int32_t>{-18, -10, 700}),
              (std::vector<int32_t>{store.ViewFontScaled.lfHeight, store.ViewFontBold.lfHeight,
                                    store.ViewFontBold.lfWeight}));
    EXPECT_EQ(TextList{L"only"}, store.TopNode);
    EXPECT_EQ((std::vector<int32_t>{1, 0, 1, 1}),
              (std::vector<int32_t>{store.TreeInfoValues::Caption, store.TabStyleValues::Caption,
                                    store.PreViewValues::Caption, store.RecentValues::Caption}));

    // The details view: one entry per column the desktop offers, nothing written.
    StoreValue(L"Detail", L"Col04", 1);
    const int32_t widths[] = {20, 10, 18, 12, 8};
    LoadDetailColumns(store, widths);
    EXPECT_EQ((std::vector<DetailColumn>{{1, 120, 0}, {1, 60, 1}, {1, 108, 2}, {1, 72, 3}, {1, 48, 4}}), store.Detail);
    EXPECT_EQ(1u, ValuesOf(L"Detail").size());

    EXPECT_EQ((std::pair{50, 3000}), (std::pair{RangeOf(&S::DelayTime).low, RangeOf(&S::DelayTime).high}));
    EXPECT_GT(RangeOf(&S::NoLine).low, RangeOf(&S::NoLine).high) << "any value";
}

TEST(SettingsGroups, TheWheelValuesLandInTheSectionLeftSelected) {
    FakePlatform fake;
    SettingsStore store;
    LoadGroup(store, SettingsGroup::ListClicks);
    store.AltWheel = 1;
    store.UseWheelCmd = 1;
    SaveGroup(store, SettingsGroup::SplitView);
    SaveWheelValues(store);
    EXPECT_EQ(Stored(1), Named(ValuesOf(L"ListAction"), L"AltWheel"));
    EXPECT_EQ(Stored(1), Named(ValuesOf(L"ListAction"), L"UseWheelCmd"));
    EXPECT_FALSE(Named(ValuesOf(L"ListMouse"), L"AltWheel"));
}

}  // namespace
