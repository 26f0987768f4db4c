#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "pages/ClickTable.h"

namespace {

using S = SettingsStore;

const ClickGroup kGroups[] = {
    {L"Dbl", {&S::ListMouseValues::En, &S::ListMouseValues::EnC, &S::ListMouseValues::EnS, &S::ListMouseValues::EnCS}},
    {L"Left", {&S::ListMouseValues::L, &S::ListMouseValues::LC, &S::ListMouseValues::LS, &S::ListMouseValues::LCS}},
};

ClickTable MakeTable(size_t actions) {
    return ClickTable(ClickRowsOf(kGroups, {L"", L"+Ctrl", L"+Shift"}), std::vector<std::wstring>(actions, L"a"));
}

// A stored value must name one of the table's actions; anything else refuses the whole table.
TEST(ClickTable, StoredValuesMustNameAnAction) {
    struct Case {
        int32_t value;
        bool accepted;
    };
    const Case cases[] = {{0, true}, {24, true}, {25, false}, {-1, false}, {0x7FFFFFFF, false}};
    for (const Case& c : cases) {
        SettingsStore store;
        store.ListMouseValues::LS = c.value;
        ClickTable table = MakeTable(25);
        if (c.accepted) {
            table.Load(store);
            EXPECT_EQ(c.value, table.Value(6));
        } else {
            EXPECT_THROW(table.Load(store), std::invalid_argument) << c.value;
        }
        EXPECT_EQ(c.accepted, c.value >= 0 && c.value < 25);
        if (c.accepted) continue;
        EXPECT_THROW(table.Set(0, c.value), std::invalid_argument) << c.value;
    }
}

// A swap of the two groups, done twice, gives back what was stored.
TEST(ClickTable, RowsAreLabelledSwappedAndStoredByGroup) {
    ClickTable table = MakeTable(10);
    ASSERT_EQ(8u, table.size());
    EXPECT_EQ((std::vector<std::wstring>{L"Dbl", L"Dbl+Ctrl", L"Dbl+Shift", L"Dbl", L"Left", L"Left+Ctrl",
                                         L"Left+Shift", L"Left"}),
              (std::vector<std::wstring>{table.Label(0), table.Label(1), table.Label(2), table.Label(3), table.Label(4),
                                         table.Label(5), table.Label(6), table.Label(7)}));
    SettingsStore store;
    int32_t value = 0;
    for (int32_t S::*member :
         {&S::ListMouseValues::En, &S::ListMouseValues::EnC, &S::ListMouseValues::EnS, &S::ListMouseValues::EnCS,
          &S::ListMouseValues::L, &S::ListMouseValues::LC, &S::ListMouseValues::LS, &S::ListMouseValues::LCS})
        store.*member = value++;
    table.Load(store);
    table.SwapRows(0, 4, 4);
    table.Store(store);
    EXPECT_EQ(4, store.ListMouseValues::En);
    EXPECT_EQ(3, store.ListMouseValues::LCS);
    table.SwapRows(0, 4, 4);
    table.Set(7, 9);
    table.Store(store);
    EXPECT_EQ(0, store.ListMouseValues::En);
    EXPECT_EQ(6, store.ListMouseValues::LS);
    EXPECT_EQ(9, store.ListMouseValues::LCS);
}

}  // namespace
