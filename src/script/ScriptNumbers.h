// Numbers in a language whose only value is text: the tests that decide when text counts as a
// number, and the conversions the assignment forms and conditions make.
#pragma once

#include <cstdint>
#include <string>

// Blanks removed: "0x" and at least one hexadecimal digit, digits only, or nothing. No sign.
bool IsScriptNumber(const std::wstring& text);
// A script number as "%lld" of its value, which drops leading zeros; any other text, and text that
// is only blanks, comes back unchanged.
std::wstring NormalisedNumberText(const std::wstring& text);
// An optional sign, then digits only; the empty text passes.
bool IsSignedInteger(const std::wstring& text);
// wcstol with base 0 when the text has a lower-case "x", _wtoi64 otherwise.
int64_t ScriptInteger(const std::wstring& text);
// Every "0x" with a hexadecimal digit behind it, inside words too, becomes its decimal value.
void RewriteHexNumbers(std::wstring& text);
// True when each character is a digit, a point, a parenthesis or one of "+- */%".
bool IsExpressionText(const std::wstring& text);
