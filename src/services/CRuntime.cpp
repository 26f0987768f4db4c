#include "services/CRuntime.h"

#include <algorithm>
#include <charconv>
#include <cwchar>
#include <cmath>
#include <limits>
#include <string>
#include <utility>

namespace crt {

namespace {

// Units are 16-bit on every platform; a wider wchar_t never holds more.
inline uint32_t Unit(wchar_t c) {
    return static_cast<uint32_t>(c) & 0xFFFF;
}

// The decimal digits the runtime's wide number parsers accept: ASCII and the zero of each
// script block below, each followed by nine more.
constexpr uint32_t kDigitZeros[] = {0x0030, 0x0660, 0x06F0, 0x0966, 0x09E6, 0x0A66, 0x0AE6, 0x0B66, 0x0C66,
                                    0x0CE6, 0x0D66, 0x0E50, 0x0ED0, 0x0F20, 0x1040, 0x17E0, 0x1810, 0xFF10};

// Value of a digit or ASCII letter (a/A = 10 ... z/Z = 35); 99 for anything else.
unsigned DigitValue(wchar_t c) {
    uint32_t u = Unit(c);
    for (uint32_t zero : kDigitZeros) {
        if (u >= zero && u < zero + 10) return u - zero;
    }
    if (u >= 'a' && u <= 'z') return u - 'a' + 10;
    if (u >= 'A' && u <= 'Z') return u - 'A' + 10;
    return 99;
}

bool IsAsciiDigit(wchar_t c) {
    return c >= L'0' && c <= L'9';
}

wchar_t AsciiLower(wchar_t c) {
    return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c + 32) : c;
}

// The runtime's integer parser: white space, sign, "0x" for base 0 and 16, digits in any
// supported script. Out of range gives the limit of the sign, and all digits are still used.
template <typename Signed>
Signed ParseInteger(const wchar_t* text, const wchar_t** end, int base) {
    using Unsigned = std::make_unsigned_t<Signed>;
    if (end) *end = text;
    if (!text || base < 0 || base == 1 || base > 36) return 0;

    const wchar_t* p = text;
    while (IsSpace(*p)) ++p;
    bool negative = false;
    if (*p == L'-' || *p == L'+') negative = *p++ == L'-';

    if ((base == 0 || base == 16) && DigitValue(*p) == 0 && (p[1] == L'x' || p[1] == L'X')) {
        base = 16;
        p += 2;
    } else if (base == 0) {
        base = DigitValue(*p) == 0 ? 8 : 10;
    }

    const Unsigned limit =
        negative ? Unsigned(std::numeric_limits<Signed>::max()) + 1 : Unsigned(std::numeric_limits<Signed>::max());
    Unsigned value = 0;
    bool overflow = false, digits = false;
    for (unsigned digit; (digit = DigitValue(*p)) < static_cast<unsigned>(base); ++p) {
        digits = true;
        if (value > (limit - digit) / base)
            overflow = true;
        else
            value = value * base + digit;
    }
    if (!digits) return 0;
    if (end) *end = p;
    if (overflow) return negative ? std::numeric_limits<Signed>::min() : std::numeric_limits<Signed>::max();
    return static_cast<Signed>(negative ? Unsigned(0) - value : value);
}

// Case-insensitive match of an ASCII word at p; the number of characters matched.
size_t MatchWord(const wchar_t* p, const char* word) {
    size_t n = 0;
    while (word[n] && AsciiLower(p[n]) == static_cast<wchar_t>(word[n])) ++n;
    return n;
}

// Significant digits of a number and the power of its base that the last one stands for.
struct Mantissa {
    std::string digits;
    int64_t exponent = 0;
};

// Reads digits [. digits] in the given base (10 or 16); false when there is no digit at all.
bool ReadMantissa(const wchar_t*& p, int base, Mantissa& m, int64_t digitWeight) {
    bool any = false;
    auto isDigit = [&](wchar_t c) {
        return base == 10 ? IsAsciiDigit(c) : (IsAsciiDigit(c) || (AsciiLower(c) >= L'a' && AsciiLower(c) <= L'f'));
    };
    for (; isDigit(*p); ++p) {
        any = true;
        if (!m.digits.empty() || *p != L'0') m.digits += static_cast<char>(*p);
    }
    int64_t integerDigits = static_cast<int64_t>(m.digits.size());
    if (*p == L'.') {
        ++p;
        for (; isDigit(*p); ++p) {
            any = true;
            if (m.digits.empty() && *p == L'0')
                --integerDigits;
            else
                m.digits += static_cast<char>(*p);
        }
    }
    // value = 0.digits * base^integerDigits
    m.exponent = (integerDigits - static_cast<int64_t>(m.digits.size())) * digitWeight;
    return any;
}

// An optional exponent: a marker, a sign and decimal digits; p stays when it is incomplete.
void ReadExponent(const wchar_t*& p, const wchar_t* markers, int64_t& exponent) {
    if (!*p || !std::wcschr(markers, *p)) return;
    const wchar_t* q = p + 1;
    bool negative = false;
    if (*q == L'-' || *q == L'+') negative = *q++ == L'-';
    if (!IsAsciiDigit(*q)) return;
    int64_t value = 0;
    for (; IsAsciiDigit(*q); ++q) value = std::min<int64_t>(value * 10 + (*q - L'0'), int64_t(1) << 40);
    exponent += negative ? -value : value;
    p = q;
}

double Compose(const Mantissa& m, int base, bool negative) {
    double value = 0;
    if (!m.digits.empty()) {
        // Far outside the range of a double the digits no longer matter.
        int64_t magnitude = m.exponent + static_cast<int64_t>(m.digits.size()) * (base == 16 ? 4 : 1);
        int64_t high = base == 16 ? 1100 : 330, low = base == 16 ? -1200 : -360;
        if (magnitude > high)
            value = HUGE_VAL;
        else if (magnitude < low)
            value = 0;
        else {
            std::string text = m.digits + (base == 16 ? "p" : "e") + std::to_string(m.exponent);
            auto result = std::from_chars(text.data(), text.data() + text.size(), value,
                                          base == 16 ? std::chars_format::hex : std::chars_format::scientific);
            if (result.ec == std::errc::result_out_of_range) value = magnitude > 0 ? HUGE_VAL : 0;
        }
    }
    return negative ? -value : value;
}

}  // namespace

bool IsSpace(wchar_t c) {
    switch (Unit(c)) {
        case 0x09:
        case 0x0A:
        case 0x0B:
        case 0x0C:
        case 0x0D:
        case 0x20:
        case 0x85:
        case 0xA0:
        case 0x1680:
        case 0x2028:
        case 0x2029:
        case 0x202F:
        case 0x205F:
        case 0x3000:
            return true;
        default:
            return Unit(c) >= 0x2000 && Unit(c) <= 0x200A;
    }
}

int32_t Wtoi(const wchar_t* text) {
    return ParseInteger<int32_t>(text, nullptr, 10);
}

int64_t Wtoi64(const wchar_t* text) {
    return ParseInteger<int64_t>(text, nullptr, 10);
}

int32_t Wcstol(const wchar_t* text, const wchar_t** end, int base) {
    return ParseInteger<int32_t>(text, end, base);
}

double Wcstod(const wchar_t* text, const wchar_t** end) {
    if (end) *end = text;
    if (!text) return 0;
    const wchar_t* p = text;
    while (IsSpace(*p)) ++p;
    bool negative = false;
    if (*p == L'-' || *p == L'+') negative = *p++ == L'-';

    if (AsciiLower(*p) == L'i' || AsciiLower(*p) == L'n') {
        bool infinity = AsciiLower(*p) == L'i';
        size_t matched = MatchWord(p, infinity ? "infinity" : "nan");
        size_t used = matched == 8 ? 8 : matched >= 3 ? 3 : 0;
        if (!used) return 0;
        if (end) *end = p + used;
        double value = infinity ? HUGE_VAL : std::numeric_limits<double>::quiet_NaN();
        return negative ? -value : value;
    }

    Mantissa m;
    int base = 10;
    if (*p == L'0' && (p[1] == L'x' || p[1] == L'X')) {
        const wchar_t* q = p + 2;
        if (ReadMantissa(q, 16, m, 4)) {
            base = 16;
            p = q;
            ReadExponent(p, L"pP", m.exponent);
        } else {
            // "0x" without a hexadecimal digit is the number 0 followed by text.
            if (end) *end = p + 1;
            return 0;
        }
    } else {
        if (!ReadMantissa(p, 10, m, 1)) return 0;
        ReadExponent(p, L"eEdD", m.exponent);
    }
    if (end) *end = p;
    return Compose(m, base, negative);
}

std::wstring Trim(std::wstring_view text) {
    size_t first = 0, last = text.size();
    while (first < last && IsSpace(text[first])) ++first;
    while (last > first && IsSpace(text[last - 1])) --last;
    return std::wstring(text.substr(first, last - first));
}

std::wstring MakeLower(std::wstring_view text) {
    std::wstring result(text);
    for (wchar_t& c : result) c = AsciiLower(c);
    return result;
}

std::wstring MakeUpper(std::wstring_view text) {
    std::wstring result(text);
    for (wchar_t& c : result)
        if (c >= L'a' && c <= L'z') c = static_cast<wchar_t>(c - 32);
    return result;
}

int Replace(std::wstring& text, std::wstring_view piece, std::wstring_view with) {
    if (piece.empty()) return 0;
    // Built afresh rather than replaced in place, which moves the whole tail for every piece: a long
    // value standing many times in a line took time in the square of its length.
    std::wstring result;
    int count = 0;
    size_t from = 0;
    for (size_t at = 0; (at = text.find(piece, from)) != std::wstring::npos; from = at + piece.size(), ++count) {
        result.append(text, from, at - from);
        result.append(with);
    }
    if (count == 0) return 0;
    result.append(text, from);
    text = std::move(result);
    return count;
}

std::wstring Mid(std::wstring_view text, int32_t start, int32_t count) {
    const size_t from = std::min(static_cast<size_t>(std::max(start, 0)), text.size());
    return std::wstring(text.substr(from, static_cast<size_t>(std::max(count, 0))));
}

std::wstring Left(std::wstring_view text, int32_t count) {
    return Mid(text, 0, count);
}

std::wstring Right(std::wstring_view text, int32_t count) {
    const size_t length = std::min(static_cast<size_t>(std::max(count, 0)), text.size());
    return std::wstring(text.substr(text.size() - length));
}

int32_t RandAfterSeed(uint32_t seed) {
    const uint32_t next = seed * 214013u + 2531011u;
    return static_cast<int32_t>((next >> 16) & 0x7FFF);
}

}  // namespace crt
