#include <gtest/gtest.h>

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "pages/FolderTree.h"
#include "platform/fake/FakePlatform.h"

namespace {

constexpr const wchar_t* kDesktop = L"B4BFCC3A-DB2C-424C-B029-7FE99A87C641";

// A stored action outside the four is refused rather than shown half right.
TEST(FolderTree, ClickRowsAreEnterLeftAndMiddleUnderTheTreesNames) {
    const std::vector<std::wstring> buttons = {L"Enter", L"Dbl", L"Left", L"Right", L"Mid"};
    const std::vector<std::wstring> modifiers = {L"", L"+C", L"+S", L"+CS"};
    const std::vector<std::wstring> labels = {L"Enter",  L"Enter+C", L"Enter+S", L"Enter+CS", L"Left",  L"Left+C",
                                              L"Left+S", L"Left+CS", L"Mid",     L"Mid+C",    L"Mid+S", L"Mid+CS"};
    SettingsStore store;
    int32_t* members[] = {&store.TreeInfoValues::En,   &store.TreeInfoValues::EnC, &store.TreeInfoValues::EnS,
                          &store.TreeInfoValues::EnCS, &store.TreeInfoValues::L,   &store.TreeInfoValues::LC,
                          &store.TreeInfoValues::LS,   &store.TreeInfoValues::LCS, &store.TreeInfoValues::M,
                          &store.TreeInfoValues::MC,   &store.TreeInfoValues::MS,  &store.TreeInfoValues::MCS};
    ClickTable table = MakeTreeClickTable(buttons, modifiers, {L"none", L"go", L"new", L"back"});
    ASSERT_EQ(labels.size(), table.size());
    for (size_t row = 0; row < table.size(); ++row) {
        EXPECT_EQ(labels[row], table.Label(row));
        table.Set(row, static_cast<int32_t>(row % 4));
    }
    table.Store(store);
    for (size_t row = 0; row < table.size(); ++row) EXPECT_EQ(static_cast<int32_t>(row % 4), *members[row]) << row;
    store.TreeInfoValues::MS = 4;
    EXPECT_THROW(table.Load(store), std::invalid_argument);
}

// A stored root as the list shows it and saves it again; none when it can no longer be named.
TEST(FolderTree, StoredRootsShowByNameOrAreLost) {
    struct Case {
        const wchar_t* stored;
        std::optional<TreeRoot> shown;
    };
    const Case cases[] = {
        {kDesktop, TreeRoot{L"Desktop", kDesktop}},
        {L"::{B4BFCC3A-DB2C-424C-B029-7FE99A87C641}", TreeRoot{L"Desktop", kDesktop}},
        // Looked up in upper case, kept as written.
        {L"{fdd39ad0-238f-46af-adb4-6c85480369c7}", TreeRoot{L"Personal", L"fdd39ad0-238f-46af-adb4-6c85480369c7"}},
        {L"00000000-0000-0000-0000-000000000000", std::nullopt},
        {L"C:\\Data", TreeRoot{L"Data (C:)", L"C:\\Data"}},
        {L"{Work}", TreeRoot{L"Work", L"Work"}},
        {L"C:\\Gone", std::nullopt},
        // Not quite an identifier: a path the shell does not know.
        {L"B4BFCC3A-DB2C-424C-B029-7FE99A87C64", std::nullopt},
        {L"B4BFCC3A-DB2C-424C-B029-7FE99A87C64G", std::nullopt},
        {L"B4BFCC3A+DB2C-424C-B029-7FE99A87C641", std::nullopt},
    };
    platform::fake::FakePlatform fake;
    fake.shell().addressNames = {{L"C:\\Data", L"Data (C:)"}, {L"Work", L"Work"}};
    for (const Case& c : cases) EXPECT_EQ(c.shown, ResolveTreeRoot(c.stored, fake.shell())) << c.stored;
}

// Upper-case identifiers in the shell's order; an unknown index is the root dialog's OK without a choice.
TEST(FolderTree, CatalogueIsReadOnceAndRefusesAnUnknownIndex) {
    platform::fake::FakePlatform fake;
    KnownFolderCatalog catalog;
    EXPECT_FALSE(catalog.ready());
    catalog.Build(fake.shell());
    fake.shell().knownFolders.clear();
    catalog.Build(fake.shell());
    EXPECT_TRUE(catalog.ready());
    EXPECT_EQ((std::vector<std::wstring>{kDesktop, L"FDD39AD0-238F-46AF-ADB4-6C85480369C7"}), catalog.ids());
    EXPECT_EQ((std::vector<std::wstring>{L"Desktop", L"Personal"}), catalog.names());
    EXPECT_EQ(L"Personal", catalog.At(1).name);
    EXPECT_THROW(catalog.At(-1), std::invalid_argument);
    EXPECT_THROW(catalog.At(2), std::invalid_argument);
}

// Rows are named by their texts "a", "b", "c".
TEST(FolderTree, RootListEditsKeepTheOrderTheUserGives) {
    enum Op { Insert, Remove, Move };
    struct Case {
        const char* label;
        Op op;
        int row, step;
        std::vector<std::wstring> after;
        int selected;
    };
    const Case cases[] = {
        {"insert before the selected row", Insert, 1, 0, {L"a", L"new", L"b", L"c"}, 1},
        {"insert without selection appends", Insert, -1, 0, {L"a", L"b", L"c", L"new"}, 3},
        {"remove selects the next row", Remove, 0, 0, {L"b", L"c"}, 0},
        {"remove the last selects the new last", Remove, 2, 0, {L"a", L"b"}, 1},
        {"remove nothing", Remove, -1, 0, {L"a", L"b", L"c"}, -1},
        {"move up", Move, 2, -1, {L"a", L"c", L"b"}, 1},
        {"move down", Move, 0, 1, {L"b", L"a", L"c"}, 1},
        {"the first stays first", Move, 0, -1, {L"a", L"b", L"c"}, -1},
        {"the last stays last", Move, 2, 1, {L"a", L"b", L"c"}, -1},
    };
    platform::fake::FakePlatform fake;
    fake.shell().addressNames = {{L"a", L"A"}, {L"b", L"B"}, {L"c", L"C"}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.label);
        TreeRootList list;
        list.Load({L"a", L"", L"gone", L"b", L"c"}, fake.shell());
        ASSERT_EQ((TextList{L"a", L"b", L"c"}), list.Texts());
        const int selected = c.op == Insert   ? list.Insert(c.row, {L"New", L"new"})
                             : c.op == Remove ? list.Remove(c.row)
                                              : list.Move(c.row, c.step);
        EXPECT_EQ(c.after, list.Texts());
        EXPECT_EQ(c.selected, selected);
    }
    TreeRootList full;
    for (int n = 0; n < 30; ++n) full.Insert(-1, {L"x", L"x"});
    EXPECT_TRUE(full.Full());
}

}  // namespace
