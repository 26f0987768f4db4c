#include <gtest/gtest.h>

#include <initializer_list>

#include "pages/ContextMenuChecks.h"
#include "pages/StatusTemplates.h"
#include "platform/fake/FakePlatform.h"
#include "settings/SettingsGroups.h"

namespace {

ContextMenuChecks Checks(std::initializer_list<int> on) {
    ContextMenuChecks checks{};
    for (int n : on) checks[n] = true;
    return checks;
}

// Shell items on top need the extra and the shell items, the extended ones the shell items; per place.
TEST(ContextMenuChecks, WhatMayBeChangedFollowsTheFirstTwoChecksOfEachPlace) {
    // clang-format off
    struct Case { const char* what; ContextMenuChecks ticked, disabled; };
    const Case cases[] = {
        {"all on", Checks({0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}), Checks({})},
        {"all off", Checks({}), Checks({2, 3, 6, 7, 10, 11})},
        {"extra only", Checks({0, 4, 8}), Checks({2, 3, 6, 7, 10, 11})},
        {"shell only", Checks({1, 5, 9}), Checks({3, 7, 11})},
        {"places apart", Checks({0, 1, 5, 8}), Checks({7, 10, 11})},
        {"the later two decide nothing", Checks({2, 3}), Checks({2, 3, 6, 7, 10, 11})},
    };
    // clang-format on
    for (const Case& c : cases) {
        ContextMenuChecks enabled = EnabledContextMenuChecks(c.ticked);
        for (bool& e : enabled) e = !e;
        EXPECT_EQ(c.disabled, enabled) << c.what;
    }
}

TEST(ContextMenuChecks, ChecksAreTheLowTwelveBits) {
    // clang-format off
    struct Case { int32_t stored; ContextMenuChecks shown; };
    const Case cases[] = {
        {0x33333333, Checks({0, 1, 4, 5, 8, 9})}, {-1, Checks({0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11})},
        {0x7ABCD800, Checks({11})}, {0x1000, Checks({})},
    };
    // clang-format on
    for (const Case& c : cases) {
        EXPECT_EQ(c.shown, ChecksOfContextMenu(c.stored)) << c.stored;
        EXPECT_EQ(c.stored, ContextMenuWithChecks(c.stored, c.shown)) << c.stored;
    }
    EXPECT_EQ(0x7ABCD001, ContextMenuWithChecks(0x7ABCD800, Checks({0}))) << "the bits above the checks stay";
}

// The Japanese preset is what a user who never changed the templates has; the presets differ.
TEST(StatusTemplates, PresetsAndParts) {
    platform::fake::FakePlatform fake;
    SettingsStore store;
    LoadGroup(store, SettingsGroup::ListStatus);
    EXPECT_EQ((StatusTemplates{store.StDiskInfo, store.StSelect, store.StNoSel}),
              PresetTemplates(StatusPreset::Japanese));
    EXPECT_EQ(L"%AllCount% Objects%AllSize% %DiskInfo%", PresetTemplates(StatusPreset::English).noSelection);
    EXPECT_EQ(L"(%DiskFree%/%DiskSize%)", PresetTemplates(StatusPreset::Sample).diskInfo);

    // clang-format off
    struct Case { int32_t stored; StatusParts parts; int32_t saved; };
    const Case cases[] = {
        {-1, {true, true, true}, 7}, {0, {false, false, false}, 0}, {5, {true, false, true}, 5}, {0x7FFFFFFA, {false, true, false}, 2},
    };
    // clang-format on
    for (const Case& c : cases) {
        EXPECT_EQ(c.parts, PartsOfListCtrls(c.stored)) << c.stored;
        EXPECT_EQ(c.saved, ListCtrlsOfParts(c.parts)) << c.stored;
    }
}

}  // namespace
