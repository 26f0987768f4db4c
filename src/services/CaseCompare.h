// Equality of words without regard to case, in the two ways the program needs: the C runtime's
// folding of the default locale, where only A-Z and a-z meet, and the collation of the user's
// locale, where every letter meets its other case.
#pragma once

#include <string_view>

namespace crt {

// _wcsicmp(a, b) == 0 in the "C" locale.
bool EqualNoCase(std::wstring_view a, std::wstring_view b);
// _wcsicoll(a, b) == 0: unit by unit on the case-insensitive collation ranks.
bool EqualCollatingNoCase(std::wstring_view a, std::wstring_view b);

}  // namespace crt
