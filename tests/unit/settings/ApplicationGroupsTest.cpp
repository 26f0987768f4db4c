#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <optional>
#include <string>

#include "platform/fake/FakePlatform.h"
#include "settings/ApplicationGroups.h"
#include "settings/SettingsStore.h"

#include "unit/settings/RegistryValues.h"

namespace {

using platform::fake::FakePlatform;
using S = SettingsStore;

// Every section a group may touch, and one it must not.
std::map<std::wstring, NamedValues> AllSections() {
    std::map<std::wstring, NamedValues> all;
    for (const wchar_t* section : {L"AppInfo", L"Settings", L"Mouse", L"Event", L"Sound", L"Elsewhere"})
        all[section] = ValuesOf(section);
    return all;
}

// Each routine selects its own section: nothing may depend on what was selected before.
void LoadAndSave(SettingsStore& store, AppGroup group, const std::function<void()>& between = {}) {
    store.SelectSection(L"Elsewhere");
    LoadGroup(store, group);
    if (between) between();
    store.SelectSection(L"Elsewhere");
    SaveGroup(store, group);
}

// Whatever a group writes on an empty registry, it reads again and writes back as the host left it:
// every value is bound to a member of its own, and no other value or section is touched.
TEST(ApplicationGroups, WhatAGroupWritesItReadsBackWhateverTheHostStoredThere) {
    for (int number = 0; number <= static_cast<int>(AppGroup::Sound); ++number) {  // every group, in order
        const auto group = static_cast<AppGroup>(number);
        SCOPED_TRACE(number);
        FakePlatform fake;
        SettingsStore first;
        LoadAndSave(first, group);
        std::map<std::wstring, NamedValues> written = AllSections();
        EXPECT_TRUE(written[L"Elsewhere"].empty());
        // Distinct values outside every page's range; ContextMenu keeps its low twelve bits.
        int n = 0;
        for (auto& [section, values] : written) {
            for (auto& [name, value] : values) {
                ++n;
                if (std::holds_alternative<int32_t>(value))
                    value = static_cast<int32_t>(kContextMenuBase + n);
                else
                    value = L"text " + std::to_wstring(n);
                StoreValue(section, name, value);
            }
        }
        EXPECT_EQ(group == AppGroup::StartUp, n == 0) << "only the start-up values are never written";
        SettingsStore store;
        LoadAndSave(store, group);
        EXPECT_EQ(written, AllSections());
    }
}

// Values whose page shows what the host stored, and where Apply may or may not write the page's value.
TEST(ApplicationGroups, ValuesTheHostOwnsAreReadAndNeverWritten) {
    struct Case {
        AppGroup group;
        const wchar_t* section;
        const wchar_t* name;  // as the host spells it
        int32_t S::*integer;
        std::wstring S::*text;
        bool saved;
    };
    // clang-format off
    const Case cases[] = {
        {AppGroup::General,      L"AppInfo",  L"ListReserveVal",   &S::ListReserveVal,   nullptr,              false},
        {AppGroup::General,      L"Settings", L"IME",              &S::IME,              nullptr,              true},
        {AppGroup::General,      L"AppInfo",  L"CasheExCmd",       &S::CasheExCmd,       nullptr,              true},
        {AppGroup::StartUp,      L"AppInfo",  L"Alfa",             &S::Alfa,             nullptr,              false},
        {AppGroup::StartUp,      L"AppInfo",  L"DoubleBuffer",     &S::DoubleBuffer,     nullptr,              false},
        {AppGroup::IncrementalSearch, L"AppInfo", L"IncliMentTime", &S::IncliMentTime,   nullptr,              true},
        {AppGroup::Network,      L"AppInfo",  L"NoNetwork",        &S::NoNetwork,        nullptr,              false},
        {AppGroup::VersionCheck, L"AppInfo",  L"VersionCheckTime", nullptr,              &S::VersionCheckTime, false},
        {AppGroup::Other,        L"Settings", L"NLS",              nullptr,              &S::NLS,              false},
        {AppGroup::Other,        L"Settings", L"EveryFront",       &S::EveryFront,       nullptr,              true},
        {AppGroup::KeyPage,      L"Settings", L"CheckMode",        &S::CheckMode,        nullptr,              false},
        {AppGroup::KeyPage,      L"Settings", L"KeyLayout",        &S::KeyLayout,        nullptr,              false},
        {AppGroup::KeyPage,      L"Settings", L"BarLock",          &S::BarLock,          nullptr,              false},
        {AppGroup::KeyPage,      L"Settings", L"DefaultDrop",      &S::DefaultDrop,      nullptr,              false},
        {AppGroup::Sound,        L"Sound",    L"SoundGuestureGo",  nullptr,              &S::SoundGuestureGo,  true},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(c.name)));
        const Stored host = c.integer ? Stored(700001) : Stored(L"host");
        const Stored page = c.integer ? Stored(700002) : Stored(L"page");
        auto named = [&](const NamedValues& values) {
            for (const auto& [name, value] : values)
                if (name == c.name) return std::optional<Stored>(value);
            return std::optional<Stored>();
        };
        FakePlatform fake;
        SettingsStore empty;
        LoadAndSave(empty, c.group);
        EXPECT_EQ(c.saved, named(ValuesOf(c.section)).has_value()) << "created on an empty registry";

        StoreValue(c.section, c.name, host);
        SettingsStore store;
        LoadAndSave(store, c.group, [&] {
            EXPECT_EQ(host, c.integer ? Stored(store.*c.integer) : Stored(store.*c.text)) << "the page shows it";
            if (c.integer)
                store.*c.integer = std::get<int32_t>(page);
            else
                store.*c.text = std::get<std::wstring>(page);
        });
        EXPECT_EQ(c.saved ? page : host, named(ValuesOf(c.section)));
    }
}

TEST(ApplicationGroups, ContextMenuKeepsOnlyItsTwelveChecks) {
    struct Case {
        const char* label;
        std::optional<int32_t> stored;
        uint32_t checks;               // bit n is check n after Load
        std::optional<uint32_t> user;  // the checks the user leaves
        uint32_t saved;
    };
    const Case cases[] = {
        {"absent", std::nullopt, 0x333, std::nullopt, 0x33333333},
        {"zero resets the upper bits", 0, 0x000, std::nullopt, 0x33333000},
        {"all bits", -1, 0xFFF, std::nullopt, 0x33333FFF},
        {"upper bits dropped", 0x7ABCDA5C, 0xA5C, std::nullopt, 0x33333A5C},
        {"bit 12 is no check", 0x00001000, 0x000, std::nullopt, 0x33333000},
        {"the checks as the user left them", std::nullopt, 0x333, 0x801, 0x33333801},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.label);
        FakePlatform fake;
        if (c.stored) StoreValue(L"Mouse", L"ContextMenu", *c.stored);
        SettingsStore store;
        LoadAndSave(store, AppGroup::ContextMenu, [&] {
            for (int n = 0; n < kContextMenuChecks; ++n) {
                EXPECT_EQ(static_cast<int32_t>((c.checks >> n) & 1), store.ContextMenuChecks[n]) << "bit " << n;
                if (c.user) store.ContextMenuChecks[n] = (*c.user >> n) & 1;
            }
            store.ContextMenu = 0x12345678;  // rebuilt from the checks, not written as it stands
        });
        EXPECT_EQ((NamedValues{{L"ContextMenu", static_cast<int32_t>(c.saved)}}), ValuesOf(L"Mouse"));
    }
}

}  // namespace
