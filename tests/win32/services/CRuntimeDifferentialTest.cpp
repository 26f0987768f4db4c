// Our C runtime rules against the system's own functions on generated inputs.
#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>
#include <cwctype>

#include "services/CRuntime.h"
#include "win32/services/Differential.h"

using differential::Generator;
using differential::Hex;
using differential::Mismatches;
using differential::Reference;

namespace {

using WtoiFunction = int(__cdecl*)(const wchar_t*);
using Wtoi64Function = long long(__cdecl*)(const wchar_t*);
using WcstolFunction = long(__cdecl*)(const wchar_t*, wchar_t**, int);
using WcstodFunction = double(__cdecl*)(const wchar_t*, wchar_t**);
using IswspaceFunction = int(__cdecl*)(wint_t);
using CaseFunction = wchar_t*(__cdecl*)(wchar_t*);

constexpr wchar_t kUnicodeZeros[] = {0x0660, 0x06F0, 0x0966, 0x09E6, 0x0A66, 0x0AE6, 0x0B66, 0x0C66, 0x0CE6,
                                     0x0D66, 0x0E50, 0x0ED0, 0x0F20, 0x1040, 0x17E0, 0x1810, 0xFF10};
constexpr const wchar_t* kBlanks[] = {L" ", L"\t", L"\n", L"\x3000", L"\xA0", L"\x2028", L"\x85", L"\x200B", L"\xFEFF"};
constexpr const wchar_t* kSigns[] = {L"+", L"-", L"--", L"+-", L" -"};
constexpr const wchar_t* kPrefixes[] = {L"0x", L"0X", L"0", L"00", L"x", L"\x0660x", L"0x0x"};
constexpr const wchar_t* kJunk[] = {L"a", L"g",  L"Z",      L"z",      L".",      L",",
                                    L"e", L"E5", L"\xFF21", L"\x00E9", L"\x6F22", L"_"};

// Text that a number parser finds interesting: blanks, signs, prefixes, digits of several
// scripts, hexadecimal letters, runs long enough to overflow, and junk in between.
std::wstring NumberText(Generator& g) {
    std::wstring text;
    size_t pieces = 1 + g.Below(5);
    for (size_t i = 0; i < pieces; ++i) {
        switch (g.Below(9)) {
            case 0:
                text += g.Pick(kBlanks);
                break;
            case 1:
                text += g.Pick(kSigns);
                break;
            case 2:
                text += g.Pick(kPrefixes);
                break;
            case 3:
            case 4: {
                size_t digits = g.Chance(30) ? 8 + g.Below(16) : 1 + g.Below(6);
                for (size_t k = 0; k < digits; ++k) text += static_cast<wchar_t>(L'0' + g.Below(10));
                break;
            }
            case 5:
                for (size_t k = 1 + g.Below(4); k > 0; --k)
                    text += static_cast<wchar_t>(g.Pick(kUnicodeZeros) + g.Below(10));
                break;
            case 6:
                for (size_t k = 1 + g.Below(10); k > 0; --k) text += L"0123456789abcdefABCDEFxyz"[g.Below(25)];
                break;
            case 7:
                text += g.Pick(kJunk);
                break;
            default:
                text += g.Chance(50) ? L"2147483647" : L"9223372036854775807";
                break;
        }
    }
    return text;
}

// The reference runtime's _wtoi64 reads ASCII digits only and wraps on overflow where the
// documented behaviour is to take other scripts' digits and stop at the limit, as _wtoi and
// wcstol do; we follow the documentation, so such texts are left out of that comparison.
bool PlainInt64Text(const std::wstring& text) {
    size_t i = 0;
    while (i < text.size() && crt::IsSpace(text[i])) ++i;
    if (i < text.size() && (text[i] == L'+' || text[i] == L'-')) ++i;
    size_t digits = 0;
    for (; i < text.size() && text[i] >= L'0' && text[i] <= L'9'; ++i) ++digits;
    if (i < text.size()) {
        for (wchar_t zero : kUnicodeZeros)
            if (text[i] >= zero && text[i] < zero + 10) return false;
    }
    return digits <= 18;
}

// Each of the 65,536 units alone: blank or not, lowered, uppered, and as a digit of base 36 before a 7.
TEST(CRuntimeDifferential, EveryUnitIsClassifiedFoldedAndReadAsTheRuntimeDoes) {
    auto isSpace = Reference<IswspaceFunction>("iswspace");
    auto lower = Reference<CaseFunction>("_wcslwr");
    auto upper = Reference<CaseFunction>("_wcsupr");
    auto wcstol = Reference<WcstolFunction>("wcstol");
    ASSERT_TRUE(isSpace && lower && upper && wcstol);
    Mismatches mismatches;
    for (uint32_t c = 0; c < 0x10000; ++c) {
        const wchar_t unit = static_cast<wchar_t>(c);
        const std::wstring text(1, unit);
        if (crt::IsSpace(unit) != (isSpace(static_cast<wint_t>(c)) != 0)) mismatches.Add("space " + Hex(text));
        if (c == 0) continue;
        wchar_t lowered[] = {unit, 0}, uppered[] = {unit, 0};
        lower(lowered);
        upper(uppered);
        if (crt::MakeLower(text) != lowered) mismatches.Add("lower " + Hex(text) + " expected " + Hex(lowered));
        if (crt::MakeUpper(text) != uppered) mismatches.Add("upper " + Hex(text) + " expected " + Hex(uppered));
        const wchar_t digit[] = {unit, L'7', 0};
        wchar_t* expectedEnd = nullptr;
        const wchar_t* foundEnd = nullptr;
        long expected = wcstol(digit, &expectedEnd, 36);
        if (crt::Wcstol(digit, &foundEnd, 36) != expected || expectedEnd != foundEnd)
            mismatches.Add("wcstol " + Hex(digit) + " expected " + std::to_string(expected));
    }
    EXPECT_EQ(0u, mismatches.count()) << mismatches.Report();
}

TEST(CRuntimeDifferential, IntegerParsersMatchOnGeneratedTexts) {
    auto wtoi = Reference<WtoiFunction>("_wtoi");
    auto wtoi64 = Reference<Wtoi64Function>("_wtoi64");
    auto wcstol = Reference<WcstolFunction>("wcstol");
    ASSERT_TRUE(wtoi && wtoi64 && wcstol);
    Generator g(1201);
    Mismatches mismatches;
    const int bases[] = {0, 10, 16, 8, 2, 36};
    int compared = 0;
    for (int i = 0; i < 6000; ++i) {
        std::wstring text = NumberText(g);
        const wchar_t* s = text.c_str();
        if (int expected = wtoi(s), found = crt::Wtoi(s); expected != found)
            mismatches.Add("_wtoi " + Hex(text) + " expected " + std::to_string(expected) + " got " +
                           std::to_string(found));
        if (PlainInt64Text(text)) {
            ++compared;
            if (long long expected = wtoi64(s), found = crt::Wtoi64(s); expected != found)
                mismatches.Add("_wtoi64 " + Hex(text) + " expected " + std::to_string(expected) + " got " +
                               std::to_string(found));
        }
        for (int base : bases) {
            wchar_t* expectedEnd = nullptr;
            const wchar_t* foundEnd = nullptr;
            long expected = wcstol(s, &expectedEnd, base);
            int32_t found = crt::Wcstol(s, &foundEnd, base);
            if (expected != found || expectedEnd != foundEnd)
                mismatches.Add("wcstol base " + std::to_string(base) + " " + Hex(text) + " expected " +
                               std::to_string(expected) + " end " + std::to_string(expectedEnd - s) + " got " +
                               std::to_string(found) + " end " + std::to_string(foundEnd - s));
        }
    }
    EXPECT_GT(compared, 2000);
    EXPECT_EQ(0u, mismatches.count()) << mismatches.Report();
}

std::wstring DoubleText(Generator& g) {
    static const wchar_t* const words[] = {L"inf",      L"INF", L"infinity", L"Infinit",   L"nan", L"NaN",
                                           L"nan(ind)", L"in",  L"na",       L"infinityx", L"-nan"};
    std::wstring text;
    if (g.Chance(10)) text += g.Pick(kBlanks);
    if (g.Chance(30)) text += g.Chance(50) ? L"-" : L"+";
    switch (g.Below(6)) {
        case 0:
            text += g.Pick(words);
            break;
        case 1: {
            // A double printed to 17 digits or as many as it takes, read back exactly.
            double value = std::bit_cast<double>((uint64_t(g.engine()()) << 32) | g.engine()());
            if (!std::isfinite(value)) value = 1.5;
            wchar_t buffer[64];
            swprintf(buffer, 64, g.Chance(50) ? L"%.17g" : L"%.25e", std::fabs(value));
            text += buffer;
            break;
        }
        case 2: {
            // Halfway between two doubles and a hair to either side.
            double value = std::ldexp(1.0 + g.Below(1 << 20) / double(1 << 20), static_cast<int>(g.Below(200)) - 100);
            wchar_t buffer[64];
            swprintf(buffer, 64, L"%.40e", value * (1 + std::ldexp(1.0, -53)));
            text += buffer;
            break;
        }
        case 3: {
            text += L"0x";
            for (size_t k = g.Below(20); k > 0; --k) text += L"0123456789abcdefABCDEF."[g.Below(23)];
            if (g.Chance(60))
                text += std::wstring(g.Chance(50) ? L"p" : L"P") + (g.Chance(50) ? L"-" : L"") +
                        std::to_wstring(g.Below(1200));
            break;
        }
        default: {
            for (size_t k = g.Below(30); k > 0; --k) text += L"0123456789."[g.Below(11)];
            if (g.Chance(60)) {
                text += L"eEdDp"[g.Below(5)];
                if (g.Chance(50)) text += L"+-"[g.Below(2)];
                text += std::to_wstring(g.Chance(80) ? g.Below(400) : g.engine()());
            }
            break;
        }
    }
    if (g.Chance(30)) text += g.Pick(kJunk);
    return text;
}

TEST(CRuntimeDifferential, WcstodMatchesOnGeneratedTexts) {
    auto wcstod = Reference<WcstodFunction>("wcstod");
    ASSERT_NE(nullptr, wcstod);
    Generator g(4711);
    Mismatches mismatches;
    for (int i = 0; i < 8000; ++i) {
        std::wstring text = DoubleText(g);
        const wchar_t* s = text.c_str();
        wchar_t* expectedEnd = nullptr;
        const wchar_t* foundEnd = nullptr;
        double expected = wcstod(s, &expectedEnd);
        double found = crt::Wcstod(s, &foundEnd);
        bool same = std::isnan(expected) ? std::isnan(found) && std::signbit(expected) == std::signbit(found)
                                         : std::bit_cast<uint64_t>(expected) == std::bit_cast<uint64_t>(found);
        // The reference runtime swallows the character behind a hexadecimal number that has no
        // "p" exponent; the number itself ends where it ends.
        bool hex = text.find(L"0x") != std::wstring::npos || text.find(L"0X") != std::wstring::npos;
        if (hex && *foundEnd && expectedEnd == foundEnd + 1) expectedEnd = const_cast<wchar_t*>(foundEnd);
        if (!same || expectedEnd != foundEnd) {
            char line[160];
            snprintf(line, sizeof line, " expected %.17g (%016llx) end %d got %.17g (%016llx) end %d", expected,
                     static_cast<unsigned long long>(std::bit_cast<uint64_t>(expected)),
                     static_cast<int>(expectedEnd - s), found,
                     static_cast<unsigned long long>(std::bit_cast<uint64_t>(found)), static_cast<int>(foundEnd - s));
            mismatches.Add(differential::Narrow(text) + " " + Hex(text) + line);
        }
    }
    EXPECT_EQ(0u, mismatches.count()) << mismatches.Report();
}

using SrandFunction = void(__cdecl*)(unsigned);
using RandFunction = int(__cdecl*)();

TEST(CRuntimeDifferential, RandAfterSeedMatchesSrandAndRand) {
    auto srandRef = Reference<SrandFunction>("srand");
    auto randRef = Reference<RandFunction>("rand");
    ASSERT_TRUE(srandRef && randRef);
    Generator g(29);
    for (int i = 0; i < 5000; ++i) {
        const uint32_t seed = i < 4 ? std::array<uint32_t, 4>{0, 1, 0x7FFFFFFF, 0xFFFFFFFF}[i]
                                    : static_cast<uint32_t>(g.Below(0xFFFFFFFF));
        srandRef(seed);
        ASSERT_EQ(randRef(), crt::RandAfterSeed(seed)) << seed;
    }
}

}  // namespace
