// What a dialog field accepts as a number, how a number is shown in one, and the texts that tell
// the user what a field wants. The dialogs' data exchange calls these; the rules live here so that
// they hold the same on every platform.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace fieldtext {

// A whole number: blanks (space, tab) around it, an optional sign and ASCII decimal digits, nothing
// else, within the range of the type. An unsigned field refuses any minus sign, "-0" included.
std::optional<int32_t> ParseInt(std::wstring_view text);
std::optional<uint32_t> ParseUInt(std::wstring_view text);

// The text a field shows for a value: "%d" and "%u".
std::wstring ShowInt(int32_t value);
std::wstring ShowUInt(uint32_t value);

// What the user is told when a field is refused.
std::wstring IntegerExpected();
std::wstring PositiveIntegerExpected();
std::wstring IntegerBetween(int32_t min, int32_t max);
std::wstring UnsignedBetween(uint32_t min, uint32_t max);
std::wstring NoMoreCharacters(int count);

}  // namespace fieldtext
