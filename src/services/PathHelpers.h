// Path text routines. All take and give whole strings; only FullPath, MakeDirectory and
// ExpandEnvironment reach the system.
#pragma once

#include <string>

// Up to and including the last backslash; the whole text when it has none.
std::wstring DirectoryPart(const std::wstring& path);
// After the last backslash; the whole text when it has none.
std::wstring FilePart(const std::wstring& path);
// Adds a backslash unless the text ends with one; empty text stays empty. A text holding "/" gets and
// is compared with U+008B instead of the backslash: files written with such paths carry it, so it stays.
std::wstring AddSeparator(const std::wstring& path);
// Removes one trailing "\" or "/". A null text gives an empty string.
std::wstring StripSeparator(const wchar_t* path);
inline std::wstring StripSeparator(const std::wstring& path) {
    return StripSeparator(path.c_str());
}
// The same, but a drive root of three characters ("C:\") stays as it is.
std::wstring StripSeparatorRootSafe(const std::wstring& path);

// _wfullpath with a buffer one longer than the argument: the argument itself when that fails,
// so only a path that does not grow (one with "..\" in it) comes back normalised.
std::wstring FullPath(const std::wstring& path);
// Creates the directory and its parents; returns the system's code, which callers are free to ignore.
int MakeDirectory(const std::wstring& path);

struct PathParts {
    std::wstring drive;      // "C:" or empty
    std::wstring directory;  // with its trailing separator
    std::wstring name;
    std::wstring extension;  // with its dot
};
// Cuts a path as _wsplitpath does.
PathParts SplitPath(const std::wstring& path);

// ExpandEnvironmentStringsW: "%NAME%" of a defined variable (any letter case) becomes its value,
// anything else stays as written. The result is cut at 16,383 characters.
std::wstring ExpandEnvironment(const std::wstring& text);
