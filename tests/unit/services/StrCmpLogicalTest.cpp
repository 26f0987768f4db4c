#include <gtest/gtest.h>

#include "services/StrCmpLogical.h"

using crt::StrCmpLogical;

namespace {

TEST(StrCmpLogical, OrdersNamesAsTheShellDoes) {
    // clang-format off
    struct Case { const wchar_t* a; const wchar_t* b; int expected; } cases[] = {
        {L"", L"", 0}, {L"a", L"", 1}, {L"", L"a", -1},
        {L"ab", L"a", 1},           // a prefix sorts first
        {L"file2", L"file10", -1},  // digit runs by value
        {L"file10", L"file2", 1},
        {L"a007", L"a7", 0},  // leading zeros do not count
        {L"a007b", L"a7c", -1},
        {L"4294967297", L"1", 0},   // values wrap at 32 bits
        {L"3000000000", L"1", -1},  // and are signed
        {L"2147483647", L"2147483648", 1},
        {L"1", L"a", -1},  // a digit comes before anything else
        {L"_", L"1", 1},
        {L"abc", L"ABC", 0},   // case does not count
        {L"\x00E9", L"E", 1},  // accents count after the letter
        {L"\x00E9", L"f", -1}, {L"\x00C9", L"\x00E9", 0},
        {L"\x00DF", L"ss", 1},  // one unit at a time: sharp s against s
        {L"_a", L"a", -1},      // punctuation before letters
        {L"-", L"_", -1},
        {L"z", L"\x30A2", -1},  // Latin before kana before ideographs
        {L"\x30A2", L"\x6F22", -1},
        {L"\x30A2", L"\x3042", -1},  // katakana and hiragana stay apart
        {L"\xFF71", L"\x30A2", -1},  // and so do half and full width
        {L"\xFF11", L"1", 1},        // only ASCII digits are digits
        {L"\x0661"
         L"0",
         L"\x0662", -1},
    };
    // clang-format on
    for (const auto& c : cases) {
        EXPECT_EQ(c.expected, StrCmpLogical(c.a, c.b)) << (&c - cases);
        EXPECT_EQ(-c.expected, StrCmpLogical(c.b, c.a)) << (&c - cases);
    }
    EXPECT_EQ(0, StrCmpLogical(nullptr, L"a"));
    EXPECT_EQ(0, StrCmpLogical(L"a", nullptr));
}

}  // namespace
