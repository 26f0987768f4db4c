#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "pages/UserBars.h"
#include "platform/fake/FakePlatform.h"
#include "settings/SettingsGroups.h"

#include "unit/settings/RegistryValues.h"

namespace {

// Without the list, multiple selection is lost too (4 reads back with it off).
TEST(UserBars, TheStyleShowsTwoChecksAndIsWrittenAsThreeFourOrSeven) {
    struct Case {
        int32_t stored, list, multiSelect, written;
    };
    const Case cases[] = {{3, 1, 1, 3}, {7, 1, 0, 7}, {4, 0, 0, 4},  {0, 0, 1, 4},
                          {1, 0, 1, 4}, {6, 0, 0, 4}, {11, 1, 1, 3}, {-1, 1, 0, 7}};
    for (const Case& c : cases) {
        const BarStyle style = DecodeBarStyle(c.stored);
        EXPECT_EQ((std::vector{c.list, c.multiSelect, c.written}),
                  (std::vector{style.list, style.multiSelect, EncodeBarStyle(style)}))
            << c.stored;
    }
}

// Name and folder are always written, the width only from a cell that has one (else 999 stays).
TEST(UserBars, ASlotShowsItsWidthOnlyWhenWholeAndWritesOnlyAWidthItShows) {
    struct Case {
        const char* label;
        UserBar read;
        SlotCells shown, applied;  // the number of applied is not used
        int32_t written;
    };
    const SlotCells empty{L"1", L"", L"", L""};
    // clang-format off
    const Case cases[] = {
        {"a whole slot", {L"Tools", L"tools", 120}, {L"1", L"Tools", L"tools", L"120"}, {L"", L"Tools", L"tools", L"120"}, 120},
        {"no name", {L"", L"tools", 120}, {L"1", L"", L"tools", L""}, {L"", L"Tools", L"", L""}, 999},
        {"registered anew", {L"", L"", 100}, empty, {L"", L"Mine", L"mine", L"500"}, 500},
        {"deleted", {L"Tools", L"tools", 120}, {L"1", L"Tools", L"tools", L"120"}, empty, 999},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.label);
        platform::fake::FakePlatform fake;
        StoreValue(L"Bar", L"Width_00", 999);
        EXPECT_EQ(c.shown, SlotCellsOf(0, c.read));
        SettingsStore store;
        store.Bars[0] = BarOfCells(c.applied.name, c.applied.dir, c.applied.width);
        SaveGroup(store, SettingsGroup::UserBar);
        store.SelectSection(L"Bar");
        EXPECT_EQ((std::vector<std::wstring>{c.applied.name, c.applied.dir, std::to_wstring(c.written)}),
                  (std::vector{store.ReadString(L"Name_00", L"-"), store.ReadString(L"Dir_00", L"-"),
                               std::to_wstring(store.ReadInt(L"Width_00", -1))}));
    }
}

// What is there stays, and without a place for the icon nothing is made.
TEST(UserBars, EachBarWithAFolderGetsTheTemplateIconOnce) {
    const std::wstring program = L"C:\\Qor\\command\\Option\\", icons = L"C:\\User\\Bar\\";
    struct Case {
        const wchar_t* dir;
        const char *before, *after;  // before null: no icon
    };
    // clang-format off
    const Case cases[] = {{L"tools", nullptr, "template"}, {L"mine", "the user's", "the user's"}, {L"", nullptr, ""},
                          {L"no\\such\\folder", nullptr, ""}, {L"not made yet", nullptr, "template"}};
    // clang-format on
    platform::fake::FakePlatform fake;
    fake.files().AddFile(L"C:\\Qor\\InitTemp\\Bar\\Default.ico", std::string_view("template"));
    fake.files().AddDirectory(icons);
    std::vector<UserBar> bars;
    for (const Case& c : cases) {
        if (c.before) fake.files().AddFile(icons + c.dir + L".ico", std::string_view(c.before));
        bars.push_back({L"name", c.dir, 100});
    }
    for (int twice = 0; twice < 2; ++twice) CopyBarIcons(fake.files(), program, L"C:\\User\\", bars);
    for (const Case& c : cases) EXPECT_EQ(c.after, fake.files().FileText(icons + c.dir + L".ico")) << c.after;
}

}  // namespace
