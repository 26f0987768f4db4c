// The C runtime's rules that stored data depends on, done once and the same on every platform:
// number parsing as _wtoi / _wtoi64 / wcstol with a 32-bit long, white space as iswspace,
// trimming as the framework's string Trim, and case folding of the default "C" locale (A-Z only).
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace crt {

// iswspace of the C runtime in the default locale.
bool IsSpace(wchar_t c);

// _wtoi: leading white space, an optional sign, decimal digits; 0 when there is no number.
int32_t Wtoi(const wchar_t* text);
inline int32_t Wtoi(const std::wstring& text) {
    return Wtoi(text.c_str());
}
// _wtoi64.
int64_t Wtoi64(const wchar_t* text);
inline int64_t Wtoi64(const std::wstring& text) {
    return Wtoi64(text.c_str());
}
// wcstol with a 32-bit long; base 0 takes "0x" as hexadecimal and a leading "0" as octal.
// *end, when given, points behind the last character used (at the text when nothing was used).
int32_t Wcstol(const wchar_t* text, const wchar_t** end, int base);
// wcstod: decimal with "e" or "d" exponent, hexadecimal with "p" exponent, "inf", "infinity" and
// "nan" in any case; correctly rounded, +-HUGE_VAL on overflow. *end as for Wcstol.
double Wcstod(const wchar_t* text, const wchar_t** end);

// CString::Trim: white space as IsSpace, from both ends.
std::wstring Trim(std::wstring_view text);

// CString::Replace: every occurrence of piece, matched with case, in one pass from the left; an
// empty piece changes nothing. Returns the number replaced.
int Replace(std::wstring& text, std::wstring_view piece, std::wstring_view with);

// CString::MakeLower / MakeUpper in the "C" locale: only A-Z and a-z change.
std::wstring MakeLower(std::wstring_view text);
std::wstring MakeUpper(std::wstring_view text);

// CString::Mid, Left and Right: a start or count below 0 counts as 0, and the piece ends at the
// end of the text.
std::wstring Mid(std::wstring_view text, int32_t start, int32_t count);
std::wstring Left(std::wstring_view text, int32_t count);
std::wstring Right(std::wstring_view text, int32_t count);

// srand(seed) and then rand(): the runtime's generator, 0 to 32767.
int32_t RandAfterSeed(uint32_t seed);

}  // namespace crt
