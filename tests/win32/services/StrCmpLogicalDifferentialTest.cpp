// Our logical name comparison against the shell's StrCmpLogicalW and the collation behind it.
#include <gtest/gtest.h>

#include <shlwapi.h>

#include "services/StrCmpLogical.h"
#include "win32/services/Differential.h"

using differential::Generator;
using differential::Hex;
using differential::Mismatches;

namespace {

int Sign(int value) {
    return value < 0 ? -1 : value > 0 ? 1 : 0;
}

// Names the way people write them: words in either case, digit runs with leading zeros and
// beyond 32 bits, punctuation, blanks, and letters of other scripts with and without accents.
std::wstring Name(Generator& g) {
    static const wchar_t* const pieces[] = {
        L"a",      L"A",      L"b",      L"Z",      L"file",   L"File",   L"FILE",   L"_",      L"-",      L".",
        L" ",      L"~",      L"(",      L"'",      L"[",      L"\x00E9", L"\x00C9", L"e",      L"E",      L"\x00DF",
        L"ss",     L"\xFF71", L"\x30A2", L"\x3042", L"\x6F22", L"\x5B57", L"\x30FC", L"\xFF21", L"\xFF41", L"\x00F1",
        L"\x03A9", L"\x03C9", L"\x00E4", L"\x017F", L"\x01C5", L"\x0660", L"\xFF11", L"\x00B2", L"\x00BD", L"!",
        L"#",      L"$",      L"+",      L"=",      L"\x3000", L"\t"};
    std::wstring name;
    for (size_t n = 1 + g.Below(5); n > 0; --n) {
        if (g.Chance(35)) {
            if (g.Chance(20)) name += std::wstring(1 + g.Below(3), L'0');
            size_t digits = g.Chance(15) ? 10 + g.Below(12) : 1 + g.Below(4);
            for (size_t k = 0; k < digits; ++k) name += static_cast<wchar_t>(L'0' + g.Below(10));
        } else if (g.Chance(5)) {
            name += static_cast<wchar_t>(1 + g.Below(0xFFFF));
        } else {
            name += g.Pick(pieces);
        }
    }
    return name;
}

// A second name close to the first: the same, cut, or with one unit changed, added or removed.
std::wstring Neighbour(Generator& g, std::wstring name) {
    switch (g.Below(5)) {
        case 0:
            return name;
        case 1:
            name.resize(g.Below(static_cast<uint32_t>(name.size()) + 1));
            return name;
        case 2:
            return name + Name(g);
        case 3:
            if (!name.empty()) name[g.Below(static_cast<uint32_t>(name.size()))] = Name(g)[0];
            return name;
        default:
            return Name(g);
    }
}

TEST(StrCmpLogicalDifferential, MatchesTheShellOnGeneratedNames) {
    Generator g(31337);
    Mismatches mismatches;
    for (int i = 0; i < 20000; ++i) {
        std::wstring a = Name(g), b = Neighbour(g, a);
        if (g.Chance(50)) std::swap(a, b);
        int expected = Sign(StrCmpLogicalW(a.c_str(), b.c_str()));
        int found = crt::StrCmpLogical(a.c_str(), b.c_str());
        if (expected != found)
            mismatches.Add(Hex(a) + " vs " + Hex(b) + " expected " + std::to_string(expected) + " got " +
                           std::to_string(found));
    }
    EXPECT_EQ(0u, mismatches.count()) << mismatches.Report();
}

// The committed table against the live collation, on random pairs of single units.
TEST(StrCmpLogicalDifferential, CollationRanksMatchTheLocaleOnRandomPairs) {
    Generator g(99);
    Mismatches mismatches;
    for (int i = 0; i < 300000; ++i) {
        wchar_t a = static_cast<wchar_t>(g.Below(0x10000)), b = static_cast<wchar_t>(g.Below(0x10000));
        if (g.Chance(30)) b = static_cast<wchar_t>(a ^ (1 + g.Below(64)));
        int expected = CompareStringW(GetThreadLocale(), NORM_IGNORECASE, &a, 1, &b, 1) - CSTR_EQUAL;
        int found = Sign(crt::CollationRank(a) - crt::CollationRank(b));
        if (expected != found)
            mismatches.Add(Hex(std::wstring{a}) + " vs " + Hex(std::wstring{b}) + " expected " +
                           std::to_string(expected));
    }
    EXPECT_EQ(0u, mismatches.count()) << mismatches.Report();
}

}  // namespace
