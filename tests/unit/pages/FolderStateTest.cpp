#include <gtest/gtest.h>

#include <string>

#include "pages/FolderState.h"

namespace {

// Shorter than the fixed columns and a TAB, a string changes nothing: not the fields, not the path.
TEST(FolderState, AStringTooShortLeavesEverythingAsItWas) {
    const FolderState before{1, 1, 4, 2, -5, 3, true, L"C:\\Before"};
    for (const wchar_t* text : {L"", L"C:\\Work", L"0 0 0 02 00 0 00000100 00000000 00000000 00 00"}) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(text)));
        FolderState state = before;
        EXPECT_FALSE(ParseFolderState(text, state));
        EXPECT_EQ(before, state);
    }
}

// The radios order the host's view numbers their own way; 3 and 8 show as list and tiles and are
// saved as 1 and 5; an unknown number shows as the list; a reserved radio keeps what was stored.
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

}  // namespace
