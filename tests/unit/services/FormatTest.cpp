#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <limits>

#include "services/Format.h"

using crt::Format;

namespace {

TEST(Format, IntegersTakeFlagsWidthPrecisionAndSize) {
    const int64_t big = int64_t(1) << 40;
    struct Case {
        std::wstring found;
        const wchar_t* expected;
    } cases[] = {
        {Format(L"%d|%i|%u", -42, 7, -1), L"-42|7|4294967295"},
        {Format(L"%+d|% d|%05d|%-5d|", 5, 5, -42, 7), L"+5| 5|-0042|7    |"},
        {Format(L"%x|%X|%#x|%#o|%o", 255, 255, 255, 8, 8), L"ff|FF|0xff|010|10"},
        {Format(L"%#x|%.0d|%.3d", 0, 0, 7), L"0||007"},
        {Format(L"%lld|%I64d|%I64u", -big, big, -1LL), L"-1099511627776|1099511627776|18446744073709551615"},
        {Format(L"%d|%ld", big + 5, big + 5), L"5|5"},  // 32 bits unless asked for more
        {Format(L"%hd|%hu|%hx", 70000, -1, -1), L"4464|65535|ffff"},
        {Format(L"%*d|%-*d|%.*d", 6, 42, 4, 1, 3, 5), L"    42|1   |005"},
        {Format(L"%*d|", -4, 9), L"9   |"},  // a negative width from the arguments left-justifies
        {Format(L"%lu", 4294967296ULL + 3), L"3"},
        {Format(L"%p", 0x1234), L"0000000000001234"},
    };
    for (const auto& c : cases) EXPECT_EQ(c.expected, c.found) << (&c - cases);
}

TEST(Format, TextsAndCharactersAreWide) {
    const std::wstring owned = L"owned";
    struct Case {
        std::wstring found;
        const wchar_t* expected;
    } cases[] = {
        {Format(L"%s|%ls|%ws|%s", L"wide", L"l", L"w", owned), L"wide|l|w|owned"},
        {Format(L"[%5s][%-5s][%.2s]", L"ab", L"ab", L"\x6F22\x5B57\x3042"), L"[   ab][ab   ][\x6F22\x5B57]"},
        {Format(L"%s|%.3s", nullptr, static_cast<const wchar_t*>(nullptr)), L"(null)|(nu"},
        {Format(L"%c%c|%3c|%-3c|", L'x', 0x3042, L'y', L'z'), L"x\x3042|  y|z  |"},
        {Format(L"100%%|%%d"), L"100%|%d"},
        {Format(L"%d %d %s"), L"0 0 (null)"},  // missing arguments read as zero
        {Format(L"%s", 12), L"(null)"},        // a number where text belongs prints nothing wrong
    };
    for (const auto& c : cases) EXPECT_EQ(c.expected, c.found) << (&c - cases);
}

TEST(Format, DoublesAreExactAndTiesGoToEven) {
    const double inf = std::numeric_limits<double>::infinity();
    const double indefinite = std::bit_cast<double>(uint64_t(0xFFF8000000000000));
    struct Case {
        std::wstring found;
        const wchar_t* expected;
    } cases[] = {
        {Format(L"%f", 1e30), L"1000000000000000019884624838656.000000"},
        {Format(L"%.2f|%.0f|%.0f|%.0f|%.0f", 0.125, 2.5, 1.5, 0.5, -2.5), L"0.12|2|2|0|-2"},
        {Format(L"%.2f|%.1f|%.2f", 0.375, 0.35, 2.675), L"0.38|0.3|2.67"},  // 0.35 and 2.675 lie below
        {Format(L"%.20f", 0.1), L"0.10000000000000000555"},
        {Format(L"%lf|%5.1f|%-8.2f|%08.2f|%+.1f", 3.14159, 3.14159, 3.14159, -3.14159, 2.0),
         L"3.141590|  3.1|3.14    |-0003.14|+2.0"},
        {Format(L"%e|%.0e|%E|%#.0e", 12345.678, 15000.0, 1e-100, 2.0), L"1.234568e+04|2e+04|1.000000E-100|2.e+00"},
        {Format(L"%g|%g|%g|%g|%g|%G", 100000.0, 1000000.0, 0.0001, 1e-5, 0.0, 1e-10),
         L"100000|1e+06|0.0001|1e-05|0|1E-10"},
        {Format(L"%#g|%.0g|%.3g|%g", 1.0, 0.5, 3.14159, -0.0), L"1.00000|0.5|3.14|-0"},
        {Format(L"%a|%.0a|%.1a|%A", 1.0, 1.5, 1.96875, 255.5),
         L"0x1.0000000000000p+0|0x2p+0|0x2.0p+0|0X1.FF00000000000P+7"},
        {Format(L"%a|%a", 0.0, 5e-324), L"0x0.0000000000000p+0|0x0.0000000000001p-1022"},
        {Format(L"%f|%F|%+f|%010f|%-5e|", inf, -inf, inf, inf, inf), L"inf|-INF|+inf|       inf|inf  |"},
        {Format(L"%f|%f|%.1g", indefinite, -indefinite, indefinite), L"-nan(ind)|nan|-nan(ind)"},
        {Format(L"%f", 1), L"0.000000"},  // an integer where a double belongs: its bit pattern
    };
    for (const auto& c : cases) EXPECT_EQ(c.expected, c.found) << (&c - cases);
}

}  // namespace
