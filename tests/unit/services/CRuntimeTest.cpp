// The runtime rules the system cannot be asked about. The differential tests on Windows compare
// the parsers, the case folding, printf formatting and the logical name order with the system's
// own functions on generated inputs; here are the inputs those comparisons leave out and the
// helpers the system has no counterpart for.
#include <gtest/gtest.h>

#include <bit>

#include "services/CRuntime.h"
#include "services/Format.h"
#include "services/StrCmpLogical.h"

namespace {

TEST(CRuntime, NumbersWhereTheSystemIsNoGuide) {
    const wchar_t* end = nullptr;
    EXPECT_EQ(0, crt::Wcstol(L"12", &end, 1)) << "an impossible base reads nothing";
    EXPECT_EQ(0, crt::Wcstol(L"12", &end, 37));
    // The system's _wtoi64 wraps and reads ASCII digits only; ours stops at the limits and reads any
    // script's digits, as _wtoi and wcstol do.
    const std::pair<const wchar_t*, int64_t> wide[] = {
        {L"9223372036854775808", INT64_MAX}, {L"-99999999999999999999999", INT64_MIN}, {L"\x0966\x0967\x0968", 12}};
    for (const auto& [text, value] : wide) EXPECT_EQ(value, crt::Wtoi64(std::wstring(text)));
    // Just above and just below half the smallest subnormal, where no generated text lands.
    EXPECT_EQ(std::bit_cast<uint64_t>(4.9406564584124654e-324),
              std::bit_cast<uint64_t>(crt::Wcstod(L"2.4703282292062328e-324", nullptr)));
    EXPECT_EQ(0u, std::bit_cast<uint64_t>(crt::Wcstod(L"2.4703282292062327e-324", nullptr)));
    // Arguments missing or of the wrong kind, which no system printf survives.
    EXPECT_EQ(L"0 0 (null)|(null)|0.000000",
              crt::Format(L"%d %d %s") + crt::Format(L"|%s|", 12) + crt::Format(L"%f", 1));
    EXPECT_EQ(0, crt::StrCmpLogical(nullptr, L"a"));
    EXPECT_EQ(0, crt::StrCmpLogical(L"a", nullptr));
}

TEST(CRuntime, TrimRemovesUnicodeBlanksAtTheEndsOnly) {
    // clang-format off
    const std::pair<const wchar_t*, const wchar_t*> cases[] = {
        {L"", L""}, {L" \t\r\n", L""}, {L"\x3000" L"a b\x00A0", L"a b"}, {L"\x2028x\x2029", L"x"},
        {L"\x200B" L"a\xFEFF", L"\x200B" L"a\xFEFF"},  // zero-width space and byte order mark are no blanks
    };
    // clang-format on
    for (const auto& [text, trimmed] : cases) EXPECT_EQ(trimmed, crt::Trim(text)) << (&text - &cases[0].first);
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
