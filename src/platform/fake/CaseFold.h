// Name comparison of the fakes: the registry and the file system compare names by upper-casing
// each 16-bit unit. This covers ASCII, Latin-1, Latin Extended-A, Greek, Cyrillic and full-width
// Latin; other units compare as they are.
#pragma once

#include <string>
#include <string_view>

namespace platform::fake {

wchar_t UpperCase(wchar_t unit);
std::wstring UpperCase(std::wstring_view text);
bool EqualNoCase(std::wstring_view a, std::wstring_view b);
// Negative, zero or positive as a sorts before, with or after b by upper-cased units.
int CompareNoCase(std::wstring_view a, std::wstring_view b);

}  // namespace platform::fake
