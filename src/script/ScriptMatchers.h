// The small text matchers of the script language: wildcard patterns and extension lists.
#pragma once

#include <string>

// "*" matches any run, also an empty one; "?" any one character; anything else itself, with case.
// A point is nothing special.
bool MatchWildcard(const std::wstring& text, const std::wstring& pattern);
// Patterns separated by semicolons, blanks kept, empty ones dropped; both sides compare lowered
// (A-Z only). An empty list matches nothing.
bool MatchPatternList(const std::wstring& text, const std::wstring& patterns);
// True when the item's extension, at least one character behind its point, is one of the
// comma-separated entries in any letter case. "*" is no wildcard here.
bool MatchExtensionList(const std::wstring& list, const std::wstring& itemPath);
