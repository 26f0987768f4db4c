// Our printf formatting against the system runtime's wide printf, as a program built with a
// current compiler calls it: legacy wide specifiers (%s is wide) and IEEE rounding of ties.
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdarg>
#include <variant>

#include "services/Format.h"
#include "win32/services/Differential.h"

using differential::Generator;
using differential::Hex;
using differential::Mismatches;

namespace {

constexpr unsigned long long kLegacyWideSpecifiers = 4;
constexpr unsigned long long kStandardRounding = 32;

using PrintFunction = int(__cdecl*)(unsigned long long, wchar_t*, size_t, const wchar_t*, _locale_t, va_list);

std::wstring ReferenceFormat(const wchar_t* format, ...) {
    static auto print = differential::Reference<PrintFunction>("__stdio_common_vswprintf");
    differential::QuietInvalidParameters();
    std::wstring buffer(8192, L'\0');
    va_list args;
    va_start(args, format);
    int length = print(kLegacyWideSpecifiers | kStandardRounding, buffer.data(), buffer.size(), format, nullptr, args);
    va_end(args);
    if (length < 0) return L"<error " + std::to_wstring(length) + L">";
    buffer.resize(length);
    return buffer;
}

// The argument of the conversion: an integer, a double or a text.
enum Kind { Integer, Double, String };
using Value = std::variant<long long, double, const wchar_t*>;

// Both sides get the same C++ arguments: up to two ints for the stars, then the value.
std::pair<std::wstring, std::wstring> Both(const wchar_t* format, const std::vector<int>& stars, const Value& value) {
    return std::visit(
        [&](auto v) {
            auto with = [&](auto... star) {
                return std::pair{ReferenceFormat(format, star..., v), crt::Format(format, star..., v)};
            };
            return stars.size() == 2 ? with(stars[0], stars[1]) : stars.size() == 1 ? with(stars[0]) : with();
        },
        value);
}

long long InterestingInteger(Generator& g) {
    static const long long fixed[] = {
        0,     1,         -1,        7,          -42,       255,       4464,         65535,           65536,
        70000, INT32_MAX, INT32_MIN, UINT32_MAX, INT64_MAX, INT64_MIN, 4294967297LL, -1099511627776LL};
    if (g.Chance(40)) return g.Pick(fixed);
    uint64_t bits = (uint64_t(g.engine()()) << 32) | g.engine()();
    int width = 1 + g.Below(64);
    bits &= width == 64 ? ~uint64_t(0) : (uint64_t(1) << width) - 1;
    return g.Chance(30) ? -static_cast<long long>(bits) : static_cast<long long>(bits);
}

double InterestingDouble(Generator& g) {
    // Ties, values just beside ties, the ends of the range and the switch points of %g.
    // clang-format off
    static const double fixed[] = {
        0.0, -0.0, 0.125, 0.375, 2.5, 1.5, 0.5, -2.5, 1e30, 1e22, 1e23, 5e-324, 2.2250738585072014e-308,
        1.7976931348623157e308, 0.1, 0.35, 2.675, 1.005, 123456789.0, 1e-5, 1e-4, 999999.5, 9.9999995,
        0.00001234567, 1e15, 1e16, 1e17, 3.0, 1.96875, 1.03125};
    // clang-format on
    // Only the two quiet NaNs arithmetic makes: the reference names every negative NaN "-nan(ind)" and every positive
    // one "nan", where the documented output tells payloads and signalling NaNs apart ("-nan", "nan(snan)"), as we do.
    static const uint64_t nonFinite[] = {0x7FF0000000000000, 0xFFF0000000000000, 0x7FF8000000000000,
                                         0xFFF8000000000000};
    switch (g.Below(6)) {
        case 0:
            return g.Pick(fixed);
        case 1:
            return std::bit_cast<double>(g.Pick(nonFinite));
        case 2:
            return std::ldexp(static_cast<double>(g.Below(1 << 16)) + 0.5, -static_cast<int>(g.Below(12)));
        case 3: {
            double value = std::bit_cast<double>((uint64_t(g.engine()()) << 32) | g.engine()());
            return std::isfinite(value) ? value : 1.25;
        }
        default: {
            double value = std::ldexp(1.0 + g.Below(1 << 30) / double(1 << 30), static_cast<int>(g.Below(120)) - 60);
            return g.Chance(30) ? -value : value;
        }
    }
}

const wchar_t* InterestingText(Generator& g) {
    static const wchar_t* const texts[] = {
        L"", L"a", L"abc", L"Hello, world", L"\x00E9t\x00E9", L"\x6F22\x5B57", L"tab\there", L"  padded  ", nullptr};
    return g.Pick(texts);
}

// One conversion with random flags, width and precision, each possibly from the arguments.
TEST(FormatDifferential, SingleConversionsMatchOnGeneratedSpecs) {
    // clang-format off
    struct Conversion { const wchar_t* letters; const wchar_t* const* sizes; size_t sizeCount; Kind kind; };
    // clang-format on
    static const wchar_t* const integerSizes[] = {L"", L"l", L"ll", L"h", L"I64", L"I32"};
    static const wchar_t* const floatSizes[] = {L"", L"l", L"L"};
    static const wchar_t* const charSizes[] = {L"", L"l", L"w"};
    static const Conversion conversions[] = {
        {L"diuxXo", integerSizes, 6, Integer}, {L"feEgG", floatSizes, 3, Double}, {L"FaA", floatSizes, 1, Double},
        {L"c", charSizes, 3, Integer},         {L"s", charSizes, 3, String},
    };
    Generator g(20240611);
    Mismatches mismatches;
    for (int i = 0; i < 12000; ++i) {
        const Conversion& conversion = conversions[g.Below(5)];
        const wchar_t letter = conversion.letters[g.Below(static_cast<uint32_t>(std::wcslen(conversion.letters)))];
        std::wstring format = L"<%";
        for (wchar_t flag : std::wstring(L"-+ #0"))
            if (g.Chance(20)) format += flag;
        // The reference crashes on "#" with "0" for a hexadecimal number that gets its prefix.
        if (conversion.kind == Integer && format.find(L'#') != std::wstring::npos && format.back() == L'0')
            format.pop_back();
        // For %a the reference pads a left-justified field inside the number and a precision
        // beyond the 13 digits of a double with blanks, so those stay out.
        const bool hex = letter == L'a' || letter == L'A';
        if (hex && format.find(L'-') != std::wstring::npos) format.erase(format.find(L'-'), 1);
        std::vector<int> stars;
        if (g.Chance(15)) {
            format += L'*';
            stars.push_back(hex ? static_cast<int>(g.Below(21)) : static_cast<int>(g.Below(41)) - 20);
        } else if (g.Chance(50)) {
            format += std::to_wstring(g.Below(26));
        }
        if (g.Chance(15)) {
            format += L".*";
            // A negative precision counts as none; the reference gets that right for integers only.
            stars.push_back(conversion.kind == Double ? static_cast<int>(g.Below(hex ? 14 : 21))
                                                      : static_cast<int>(g.Below(17)) - 4);
        } else if (g.Chance(50)) {
            format += L'.';
            // Long precisions only where the reference copes with them: its integer conversion
            // overruns a fixed buffer when precision and prefix pass about 20 digits.
            uint32_t limit = conversion.kind == Integer ? 13 : hex ? 14 : g.Chance(10) ? 80 : 21;
            if (g.Chance(85)) format += std::to_wstring(g.Below(limit));
        }
        format += conversion.sizes[g.Below(static_cast<uint32_t>(conversion.sizeCount))];
        format += letter;
        format += L'>';

        Value value = conversion.kind == Double ? Value(InterestingDouble(g))
                      : conversion.kind == String
                          ? Value(InterestingText(g))
                          : Value(letter == L'c' ? static_cast<long long>(g.Below(0x10000)) : InterestingInteger(g));
        auto [expected, found] = Both(format.c_str(), stars, value);
        if (expected != found) {
            std::string argument;
            for (int star : stars) argument += std::to_string(star) + ",";
            if (auto* integer = std::get_if<long long>(&value)) argument += std::to_string(*integer);
            if (auto* number = std::get_if<double>(&value))
                argument += "bits " + std::to_string(std::bit_cast<uint64_t>(*number));
            if (auto* text = std::get_if<const wchar_t*>(&value)) argument += *text ? Hex(*text) : "null";
            mismatches.Add(differential::Narrow(format) + " (" + argument + ") expected \"" +
                           differential::Narrow(expected) + "\" got \"" + differential::Narrow(found) + "\"");
        }
    }
    EXPECT_EQ(0u, mismatches.count()) << mismatches.Report();
}

// Whole formats as the program writes them, several conversions and literal text together.
TEST(FormatDifferential, CompositeFormatsMatch) {
    Generator g(77);
    Mismatches mismatches;
    for (int i = 0; i < 3000; ++i) {
        long long a = InterestingInteger(g), b = InterestingInteger(g);
        double x = InterestingDouble(g);
        const wchar_t* s = InterestingText(g);
        auto check = [&](const wchar_t* format, auto... args) {
            std::wstring expected = ReferenceFormat(format, args...), found = crt::Format(format, args...);
            if (expected != found)
                mismatches.Add(differential::Narrow(format) + " expected \"" + differential::Narrow(expected) +
                               "\" got \"" + differential::Narrow(found) + "\"");
        };
        check(L"%s=%d", s, a);
        check(L"%lld\t%08X|%.2f", a, b, x);
        check(L"[%-10s][%10.3e][%%][%I64u]", s, x, a);
        check(L"%f %g %lf", x, x, x);
        check(L"%c%c%d", 0x41 + (a & 7), 0x3042, b);
        check(L"%p", a);
    }
    EXPECT_EQ(0u, mismatches.count()) << mismatches.Report();
}

}  // namespace
