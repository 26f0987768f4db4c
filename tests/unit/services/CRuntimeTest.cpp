#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>

#include "services/CRuntime.h"

namespace {

TEST(CRuntime, WcstolReadsSignsPrefixesDigitsAndSaturates) {
    // clang-format off
    struct Case { const wchar_t* text; int base; int32_t value; int used; /* characters taken */ };
    const Case cases[] = {
        {L"", 10, 0, 0}, {L"   ", 10, 0, 0}, {L"42", 10, 42, 2}, {L" \t-17x", 10, -17, 5}, {L"+5", 10, 5, 2},
        {L"-", 10, 0, 0}, {L"- 5", 10, 0, 0},
        {L"\x3000\x00A0" L"12", 10, 12, 4},  // ideographic and no-break space are blanks
        {L"\x200B" L"12", 10, 0, 0},          // a zero-width space is not
        {L"2147483647", 10, INT32_MAX, 10}, {L"2147483648", 10, INT32_MAX, 10}, {L"-2147483648", 10, INT32_MIN, 11},
        {L"-99999999999999999999", 10, INT32_MIN, 21},  // every digit is used even past the limit
        {L"0x1A", 0, 26, 4}, {L"0X1a", 16, 26, 4},
        {L"0x", 0, 0, 0},  // no hexadecimal digit: nothing is used
        {L"0xg", 16, 0, 0}, {L"0x", 10, 0, 1},
        {L"0xFFFFFFFF", 0, INT32_MAX, 10},  // no sign, so never negative
        {L"-0x80000000", 0, INT32_MIN, 11}, {L"017", 0, 15, 3}, {L"019", 0, 1, 2}, {L"08", 8, 0, 1},
        {L"zz", 36, 1295, 2},
        {L"\x0661\x0662", 10, 12, 2},  // Arabic-Indic digits
        {L"\xFF11\xFF10", 10, 10, 2},  // full-width digits
        {L"\x0660x1f", 0, 31, 4},      // any script's zero starts the hexadecimal prefix
        {L"\xFF21", 16, 0, 0},         // full-width letters are no hexadecimal digits
        {L"12", 1, 0, 0}, {L"12", 37, 0, 0},  // an impossible base reads nothing
    };
    // clang-format on
    for (const auto& c : cases) {
        const wchar_t* end = nullptr;
        EXPECT_EQ(c.value, crt::Wcstol(c.text, &end, c.base)) << "base " << c.base << " index " << (&c - cases);
        EXPECT_EQ(c.used, end - c.text) << "base " << c.base << " index " << (&c - cases);
    }
}

TEST(CRuntime, WtoiAndWtoi64SaturateAndReadAnyScriptsDigits) {
    // clang-format off
    struct Case { const wchar_t* text; int32_t value32; int64_t value64; } cases[] = {
        {L"", 0, 0}, {L"abc", 0, 0}, {L"  -12abc", -12, -12}, {L"0x10", 0, 0}, {L"1.9", 1, 1},
        {L"99999999999", INT32_MAX, 99999999999LL}, {L"-99999999999", INT32_MIN, -99999999999LL},
        {L"9223372036854775808", INT32_MAX, INT64_MAX}, {L"-9223372036854775808", INT32_MIN, INT64_MIN},
        {L"-99999999999999999999999", INT32_MIN, INT64_MIN},
        {L"\x0966\x0967\x0968", 12, 12},  // Devanagari
    };
    // clang-format on
    for (const auto& c : cases) {
        EXPECT_EQ(c.value32, crt::Wtoi(c.text)) << (&c - cases);
        EXPECT_EQ(c.value64, crt::Wtoi64(std::wstring(c.text))) << (&c - cases);
    }
}

TEST(CRuntime, WcstodReadsDecimalHexadecimalAndWords) {
    // clang-format off
    struct Case { const wchar_t* text; double value; int used; } cases[] = {
        {L"", 0, 0}, {L"  3.25xyz", 3.25, 6}, {L"-.5", -0.5, 3}, {L"5.", 5, 2}, {L".", 0, 0}, {L"-.e1", 0, 0},
        {L"1e", 1, 1}, {L"1e+", 1, 1}, {L"1E3", 1000, 3},
        {L"1d5", 100000, 3},  // the old Fortran exponent letter
        {L"0x1.8p1", 3, 7}, {L"0x.8", 0.5, 4},
        {L"0x", 0, 1},  // "0" followed by text
        {L"0x1p", 1, 3}, {L"1e400", HUGE_VAL, 5}, {L"-1e400", -HUGE_VAL, 6}, {L"1e-400", 0, 6},
        {L"inf", HUGE_VAL, 3}, {L"-Infinity!", -HUGE_VAL, 9}, {L"infinit", HUGE_VAL, 3}, {L"in", 0, 0},
        {L"\xFF11", 0, 0},  // only ASCII digits here
        {L"0.1", 0.1, 3}, {L"1000000000000000019884624838656", 1e30, 31},
        {L"2.4703282292062328e-324", 4.9406564584124654e-324, 23},  // just above half the smallest
        {L"2.4703282292062327e-324", 0, 23},                        // just below it
    };
    // clang-format on
    for (const auto& c : cases) {
        const wchar_t* end = nullptr;
        double value = crt::Wcstod(c.text, &end);
        EXPECT_EQ(std::bit_cast<uint64_t>(c.value), std::bit_cast<uint64_t>(value)) << (&c - cases) << " " << value;
        EXPECT_EQ(c.used, end - c.text) << (&c - cases);
    }
    const wchar_t* nan = L"NaN(1)";
    const wchar_t* end = nullptr;
    EXPECT_TRUE(std::isnan(crt::Wcstod(nan, &end)));
    EXPECT_EQ(3, end - nan);  // the part in parentheses is not read
    EXPECT_TRUE(std::signbit(crt::Wcstod(L"-0", nullptr)));
}

TEST(CRuntime, TrimRemovesUnicodeBlanksAtTheEndsOnly) {
    // clang-format off
    struct Case { const wchar_t* text; const wchar_t* both; const wchar_t* left; const wchar_t* right; } cases[] = {
        {L"", L"", L"", L""}, {L" \t\r\n", L"", L"", L""},
        {L"\x3000" L"a b\x00A0", L"a b", L"a b\x00A0", L"\x3000" L"a b"},
        {L"\x2028x\x2029", L"x", L"x\x2029", L"\x2028x"},
        {L"\x200B" L"a\xFEFF", L"\x200B" L"a\xFEFF", L"\x200B" L"a\xFEFF", L"\x200B" L"a\xFEFF"},
    };
    // clang-format on
    for (const auto& c : cases) {
        EXPECT_EQ(c.both, crt::Trim(c.text)) << (&c - cases);
        EXPECT_EQ(c.left, crt::TrimLeft(c.text)) << (&c - cases);
        EXPECT_EQ(c.right, crt::TrimRight(c.text)) << (&c - cases);
    }
}

TEST(CRuntime, CaseFoldingTouchesOnlyAsciiLetters) {
    const std::wstring text = L"AbZz@[`{\x00C0\x00E9\x0391\x03B1\xFF21\xFF41";
    EXPECT_EQ(L"abzz@[`{\x00C0\x00E9\x0391\x03B1\xFF21\xFF41", crt::MakeLower(text));
    EXPECT_EQ(L"ABZZ@[`{\x00C0\x00E9\x0391\x03B1\xFF21\xFF41", crt::MakeUpper(text));
}

TEST(CRuntime, ReplaceIsOnePassFromTheLeft) {
    // clang-format off
    struct Case { std::wstring text, piece, with, expected; int count; };
    const Case cases[] = {
        {L"a\r\nb\r\n", L"\r\n", L"", L"ab", 2},
        // Removing the inner pair leaves a new one that stays, as in one left-to-right pass.
        {L"\r\r\n\n", L"\r\n", L"", L"\r\n", 1},
        {L"aaa", L"aa", L"b", L"ba", 1}, {L"%x%", L"%x%", L"%x%", L"%x%", 1}, {L"abc", L"", L"z", L"abc", 0},
        {L"ABC", L"b", L"z", L"ABC", 0}, {L"x", L"x", L"xx", L"xx", 1},
    };
    // clang-format on
    for (const auto& c : cases) {
        std::wstring text = c.text;
        EXPECT_EQ(c.count, crt::Replace(text, c.piece, c.with)) << testing::PrintToString(c.text);
        EXPECT_EQ(c.expected, text) << testing::PrintToString(c.text);
    }
}

TEST(CRuntime, MidLeftRightCutAsTheFrameworkDoes) {
    // clang-format off
    const struct { std::wstring found; const wchar_t* expected; } cases[] = {
        {crt::Mid(L"abcdef", 2, 2), L"cd"}, {crt::Mid(L"abcdef", -3, 2), L"ab"}, {crt::Mid(L"abcdef", 9, 2), L""},
        {crt::Mid(L"abcdef", 4, 99), L"ef"}, {crt::Mid(L"abcdef", 1, -1), L""}, {crt::Left(L"abc", 7), L"abc"},
        {crt::Left(L"abc", -1), L""}, {crt::Right(L"abc", 2), L"bc"}, {crt::Right(L"abc", 9), L"abc"},
        {crt::Right(L"abc", -2), L""},
    };
    // clang-format on
    for (const auto& c : cases) EXPECT_EQ(c.expected, c.found) << (&c - cases);
}

}  // namespace
