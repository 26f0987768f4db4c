// Equality of words without regard to case, in the two ways the program needs: the C runtime's
// folding of the default locale, where only A-Z and a-z meet, and the collation of the user's
// locale, where every letter meets its other case.
#pragma once

#include <string_view>

namespace crt {

// _wcsicmp(a, b) == 0 in the "C" locale.
bool EqualNoCase(std::wstring_view a, std::wstring_view b);
// StrCmpIW(a, b) == 0, as _wcsicoll of the user's locale: the case-insensitive collation ranks of
// whole strings, where units that weigh nothing (a soft hyphen, a joiner) are passed over and a
// ligature meets the two letters it stands for ("\u00DF" and "ss"). A letter followed by a combining
// mark is not taken as its precomposed form.
bool EqualCollatingNoCase(std::wstring_view a, std::wstring_view b);

}  // namespace crt
