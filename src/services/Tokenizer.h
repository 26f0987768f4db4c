// Splitting of separated text and of "key = value" lines, with the rules the file formats depend on.
#pragma once

#include <string>
#include <vector>

// Appends the fields of text, cut at every separator, to target; returns the number of entries in target.
// A U+0000 ends the text early; an empty text returns 0 at once and leaves target alone.
// trim: each field loses its white space at both ends; keepEmpty: empty fields are kept.
int Tokenize(std::vector<std::wstring>& target, const wchar_t* text, wchar_t separator, bool trim, bool keepEmpty);
inline int Tokenize(std::vector<std::wstring>& target, const std::wstring& text, wchar_t separator, bool trim,
                    bool keepEmpty) {
    return Tokenize(target, text.c_str(), separator, trim, keepEmpty);
}

// The text before the first separator, trimmed, lowered (A-Z) when asked; empty when there is no separator.
std::wstring LeftOfSeparator(const std::wstring& text, wchar_t separator, bool lower);
// The text after the first separator, trimmed when asked; empty when there is no separator.
std::wstring RightOfSeparator(const std::wstring& text, wchar_t separator, bool trim);
