#include <gtest/gtest.h>

#include <string>

#include "pages/FolderState.h"

namespace {

TEST(FolderState, AStringTooShortLeavesEverythingAsItWas) {
    const FolderState before{1, 1, 4, 2, -5, 3, true, L"C:\\Before"};
    for (const wchar_t* text : {L"", L"C:\\Work", L"0 0 0 02 00 0 00000100 00000000 00000000 00 00"}) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(text)));
        FolderState state = before;
        EXPECT_FALSE(ParseFolderState(text, state));
        EXPECT_EQ(before, state);
    }
}

// 3 and 8 show as list and tiles and are saved as 1 and 5; a reserved radio keeps what was stored.
TEST(FolderState, ViewNumbersMapToTheRadiosAndBack) {
    // clang-format off
    struct Case { int32_t stored; int radio; int32_t saved; };
    const Case cases[] = {
        {2, 0, 2}, {1, 1, 1}, {4, 2, 4}, {5, 3, 5}, {6, 4, 6}, {0, 5, 0}, {7, 6, 7},
        {3, 1, 1}, {8, 3, 5}, {9, 1, 1}, {-1, 1, 1}, {99, 1, 1},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.stored);
        EXPECT_EQ(c.radio, ViewRadioOfNumber(c.stored));
        EXPECT_EQ(c.saved, ViewNumberOfRadio(c.radio, c.stored));
    }
    for (int reserved : {7, 8, -1}) EXPECT_EQ(8, ViewNumberOfRadio(reserved, 8));
}

// Every field both ways: a sort key below zero, old view numbers, host-only fields, paths with a TAB.
TEST(FolderState, ReadsAndWritesEveryColumn) {
    // clang-format off
    struct Case { const wchar_t* stored; FolderState read; const wchar_t* written; };
    const Case cases[] = {
        {L"0 1 0 02 00 0 00000100 00000000 00000000 00 00\tC:\\Work",
         {1, 0, 2, 0, 0, 0, false, L"C:\\Work"}, nullptr},
        {L"0 0 1 07 05 0 00000091 00000000 00000000 00 00\tD:\\*\\Music",
         {0, 1, 7, 5, -9, 0, false, L"D:\\*\\Music"}, nullptr},
        {L"0 1 1 04 02 0 00000099 00000000 00000000 00 00\t^C:\\(a|b)$",
         {1, 1, 4, 2, -1, 0, false, L"^C:\\(a|b)$"}, nullptr},
        {L"0 0 0 06 03 0 00000112 00000000 00000000 00 00\t",
         {0, 0, 6, 3, 12, 0, false, L""}, nullptr},
        // the host's own fields are read, then lost at the next edit
        {L"9 1 0 05 01 7 00000103 00010002 12345678 42 99\tC:\\Host",
         {1, 0, 5, 1, 3, 42, true, L"C:\\Host"},
         L"0 1 0 05 01 0 00000103 00000000 00000000 00 00\tC:\\Host"},
        // the path runs from the first TAB to the end, TABs and all
        {L"0 0 0 02 00 0 00000088 00000000 00000000 00 00\tC:\\a\tb",
         {0, 0, 2, 0, -12, 0, false, L"C:\\a\tb"}, nullptr},
        // a column of letters reads as 0; no TAB, no path
        {L"0 x 0 ab 00 0 0000010x 00000000 00000000 00 00 C:\\NoTab",
         {0, 0, 0, 0, -90, 0, false, L""},
         L"0 0 0 00 00 0 00000010 00000000 00000000 00 00\t"},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(c.stored)));
        FolderState state;
        ASSERT_TRUE(ParseFolderState(c.stored, state));
        EXPECT_EQ(c.read, state);
        EXPECT_EQ(c.written ? c.written : c.stored, BuildFolderState(state));
    }
}

}  // namespace
