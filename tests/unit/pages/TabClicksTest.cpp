#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

#include "pages/TabClicks.h"
#include "platform/fake/FakePlatform.h"
#include "settings/SettingsGroups.h"

#include "unit/settings/RegistryValues.h"

namespace {

const std::vector<std::wstring> kButtons = {L"Enter", L"Dbl", L"Left", L"Right", L"Mid"};
const std::vector<std::wstring> kModifiers = {L"", L"+C", L"+S", L"+CS"};

// Each command labelled with its own number, so that what a row shows is what it writes.
std::vector<std::wstring> NumberLabels() {
    std::vector<std::wstring> labels;
    for (int32_t command : kTabClickCommands) labels.push_back(std::to_wstring(command));
    return labels;
}

// The host keeps 16 bits; any command but the sixteen comes back as closing the tab.
TEST(TabClicks, EachGestureShowsItsCommandAndWritesItUnderItsOwnName) {
    struct Case {
        const wchar_t *name, *row;
        int32_t stored, written;  // stored 1: never stored
    };
    const Case cases[] = {
        {L"TabBarClkD", L"Dbl", 35112, 35112},    {L"TabBarClkDC", L"Dbl+C", 1, 35053},
        {L"TabBarClkDS", L"Dbl+S", 0, 0},         {L"TabBarClkDSC", L"Dbl+CS", 36200, 36200},
        {L"TabBarClkR", L"Right", 12345, 35112},  {L"TabBarClkRC", L"Right+C", 0x10000 + 35850, 35850},
        {L"TabBarClkRS", L"Right+S", -1, 35112},  {L"TabBarClkRSC", L"Right+CS", 57637, 57637},
        {L"TabBarClkM", L"Mid", 1, 35850},        {L"TabBarClkMC", L"Mid+C", 33301, 33301},
        {L"TabBarClkMS", L"Mid+S", 57600, 57600}, {L"TabBarClkMSC", L"Mid+CS", 35055, 35055},
    };
    platform::fake::FakePlatform fake;
    for (const Case& c : cases)
        if (c.stored != 1) StoreValue(L"TabStyle", c.name, c.stored);
    SettingsStore store;
    LoadGroup(store, SettingsGroup::TabCommon);
    ClickTable table = MakeTabClickTable(kButtons, kModifiers, NumberLabels());
    table.Load(store);
    ASSERT_EQ(std::size(cases), table.size());
    table.Store(store);
    SaveGroup(store, SettingsGroup::TabCommon);
    const NamedValues written = ValuesOf(L"TabStyle");
    for (size_t row = 0; row < table.size(); ++row) {
        const Case& c = cases[row];
        SCOPED_TRACE(testing::PrintToString(std::wstring(c.name)));
        EXPECT_EQ(c.row, table.Label(row));
        EXPECT_EQ(std::to_wstring(c.written), table.ActionText(row));
        EXPECT_NE(written.end(),
                  std::find(written.begin(), written.end(), std::pair(std::wstring(c.name), Stored(c.written))));
    }
    EXPECT_THROW(table.Set(11, 16), std::invalid_argument) << "only the sixteen can be chosen";
    EXPECT_THROW(MakeTabClickTable(kButtons, kModifiers, std::vector<std::wstring>(15)), std::invalid_argument);
}

}  // namespace
