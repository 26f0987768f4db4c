#include <gtest/gtest.h>

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "pages/UserBars.h"
#include "platform/fake/FakePlatform.h"
#include "settings/SettingsGroups.h"

#include "unit/settings/RegistryValues.h"

namespace {

std::optional<Stored> Named(const std::wstring& section, const std::wstring& wanted) {
    for (const auto& [name, value] : ValuesOf(section))
        if (name == wanted) return value;
    return std::nullopt;
}

// The checks a stored style shows, and what the page writes with them as shown and with the list
// check turned around.
TEST(UserBars, TheStyleShowsTwoChecksAndIsWrittenAsThreeFourOrSeven) {
    struct Case {
        std::optional<int32_t> stored;  // none: the default
        int32_t list, multiSelect, written, writtenListToggled;
    };
    const Case cases[] = {
        {std::nullopt, 1, 0, 7, 4},
        {3, 1, 1, 3, 4},
        {7, 1, 0, 7, 4},
        {4, 0, 0, 4, 7},
        {0, 0, 1, 4, 3},
        {1, 0, 1, 4, 3},
        {6, 0, 0, 4, 7},
        {11, 1, 1, 3, 4},
        {-1, 1, 0, 7, 4},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.stored.value_or(-99));
        platform::fake::FakePlatform fake;
        if (c.stored) StoreValue(L"Bar", L"Style", *c.stored);
        SettingsStore store;
        LoadGroup(store, SettingsGroup::UserBar);
        BarStyle style = DecodeBarStyle(store.Style);
        EXPECT_EQ(c.list, style.list);
        EXPECT_EQ(c.multiSelect, style.multiSelect);
        EXPECT_EQ(c.written, EncodeBarStyle(style));
        style.list = !style.list;
        EXPECT_EQ(c.writtenListToggled, EncodeBarStyle(style));
    }
    const BarStyle listOff{0, 1};
    EXPECT_EQ(0, DecodeBarStyle(EncodeBarStyle(listOff)).multiSelect) << "multiple selection goes with the list";
}

// What a slot shows of its stored values, and what Apply writes for the cells it then holds: name and
// folder always, the width only from a cell that has one, leaving an older width in place.
TEST(UserBars, ASlotShowsItsWidthOnlyWhenWholeAndWritesOnlyAWidthItShows) {
    struct Case {
        const char* label;
        std::optional<std::wstring> name, dir;
        std::optional<int32_t> width;
        SlotCells shown;
        SlotCells applied;  // number unused
        std::optional<int32_t> writtenWidth;
    };
    const SlotCells empty{L"1", L"", L"", L""};
    // clang-format off
    const Case cases[] = {
        {"a whole slot", L"Tools", L"tools", 120, {L"1", L"Tools", L"tools", L"120"}, {L"", L"Tools", L"tools", L"120"}, 120},
        {"the default width", L"Tools", L"tools", {}, {L"1", L"Tools", L"tools", L"100"}, {L"", L"Tools", L"tools", L"100"}, 100},
        {"no name", L"", L"tools", 120, {L"1", L"", L"tools", L""}, {L"", L"", L"tools", L""}, 120},
        {"no folder", L"Tools", {}, 300, {L"1", L"Tools", L"", L""}, {L"", L"Tools", L"", L""}, 300},
        {"nothing stored", {}, {}, {}, empty, {L"", L"", L"", L""}, {}},
        {"registered anew", {}, {}, 50, empty, {L"", L"Mine", L"mine", L"500"}, 500},
        {"deleted", L"Tools", L"tools", 120, {L"1", L"Tools", L"tools", L"120"}, {L"", L"", L"", L""}, 120},
        {"a width typed as text", L"A", L"a", 7, {L"1", L"A", L"a", L"7"}, {L"", L"A", L"a", L" 42x"}, 42},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.label);
        platform::fake::FakePlatform fake;
        if (c.name) StoreValue(L"Bar", L"Name_00", *c.name);
        if (c.dir) StoreValue(L"Bar", L"Dir_00", *c.dir);
        if (c.width) StoreValue(L"Bar", L"Width_00", *c.width);
        SettingsStore store;
        LoadGroup(store, SettingsGroup::UserBar);
        EXPECT_EQ(c.shown, SlotCellsOf(0, store.Bars[0]));
        EXPECT_EQ((SlotCells{L"9", L"", L"", L""}), SlotCellsOf(8, store.Bars[8]));
        store.Bars[0] = BarOfCells(c.applied.name, c.applied.dir, c.applied.width);
        SaveGroup(store, SettingsGroup::UserBar);
        EXPECT_EQ(Stored(c.applied.name), Named(L"Bar", L"Name_00"));
        EXPECT_EQ(Stored(c.applied.dir), Named(L"Bar", L"Dir_00"));
        EXPECT_EQ(c.writtenWidth ? std::optional<Stored>(*c.writtenWidth) : std::nullopt, Named(L"Bar", L"Width_00"));
    }
}

// Every bar with a folder has its icon from the program's template, made once: what is there stays.
TEST(UserBars, EachBarWithAFolderGetsTheTemplateIconOnce) {
    const std::wstring program = L"C:\\Qor\\command\\Option\\", user = L"C:\\User\\";
    struct Case {
        const wchar_t* dir;
        const char* iconBefore;  // null: none
        const char* iconAfter;   // empty: none
    };
    const Case cases[] = {
        {L"tools", nullptr, "template"},    {L"mine", "the user's", "the user's"},   {L"", nullptr, ""},
        {L"no\\such\\folder", nullptr, ""}, {L"no folder yet", nullptr, "template"},
    };
    platform::fake::FakePlatform fake;
    fake.files().AddFile(L"C:\\Qor\\InitTemp\\Bar\\Default.ico", std::string_view("template"));
    fake.files().AddDirectory(user + L"Bar");
    std::vector<UserBar> bars;
    for (const Case& c : cases) {
        if (c.iconBefore) fake.files().AddFile(user + L"Bar\\" + c.dir + L".ico", std::string_view(c.iconBefore));
        bars.push_back({L"name", c.dir, 100});
    }
    CopyBarIcons(fake.files(), program, user, bars);
    CopyBarIcons(fake.files(), program, user, bars);
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(c.dir)));
        EXPECT_EQ(c.iconAfter, fake.files().FileText(user + L"Bar\\" + c.dir + L".ico"));
    }
    EXPECT_EQ(platform::kInvalidAttributes, fake.files().GetAttributes(user + L"Bar\\tools"))
        << "the bar's folder is the user's to make";
    fake.files().Delete(L"C:\\Qor\\InitTemp\\Bar\\Default.ico");
    CopyBarIcons(fake.files(), program, user, std::vector<UserBar>{{L"n", L"late", 1}});
    EXPECT_EQ("", fake.files().FileText(user + L"Bar\\late.ico")) << "without the template nothing is made";
}

// The twelve rows of a bar's click table under the names the host reads, with their defaults; a stored
// action outside the ten keeps the table from showing.
TEST(UserBars, ClicksOnABarItemAreTwelveRowsOfTenActions) {
    const std::vector<std::wstring> buttons = {L"Enter", L"Dbl", L"Left", L"Right", L"Mid"};
    const std::vector<std::wstring> modifiers = {L"", L"+C", L"+S", L"+CS"};
    const std::vector<std::wstring> actions = {L"0", L"1", L"2", L"3", L"4", L"5", L"6", L"7", L"8", L"9"};
    struct Case {
        const wchar_t *name, *row;
        int32_t action;
    };
    const Case cases[] = {
        {L"En", L"Enter", 8}, {L"EnC", L"Enter+C", 8}, {L"EnS", L"Enter+S", 6}, {L"EnCS", L"Enter+CS", 6},
        {L"L", L"Left", 8},   {L"LC", L"Left+C", 2},   {L"LS", L"Left+S", 6},   {L"LCS", L"Left+CS", 6},
        {L"M", L"Mid", 2},    {L"MC", L"Mid+C", 2},    {L"MS", L"Mid+S", 6},    {L"MCS", L"Mid+CS", 6},
    };
    platform::fake::FakePlatform fake;
    SettingsStore store;
    LoadGroup(store, SettingsGroup::UserBar);
    ClickTable table = MakeUserBarClickTable(buttons, modifiers, actions);
    table.Load(store);
    ASSERT_EQ(std::size(cases), table.size());
    for (size_t row = 0; row < table.size(); ++row) table.Set(row, static_cast<int32_t>(9 - row % 10));
    table.Store(store);
    SaveGroup(store, SettingsGroup::UserBar);
    for (size_t row = 0; row < table.size(); ++row) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(cases[row].name)));
        EXPECT_EQ(cases[row].row, table.Label(row));
        EXPECT_EQ(Stored(static_cast<int32_t>(9 - row % 10)), Named(L"UBar", cases[row].name));
    }
    StoreValue(L"UBar", L"MCS", 10);
    LoadGroup(store, SettingsGroup::UserBar);
    EXPECT_THROW(table.Load(store), std::invalid_argument);
}

}  // namespace
