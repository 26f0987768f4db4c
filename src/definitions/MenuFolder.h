// The files of the user's menu folder as the menu page lists them: every file, with its first line
// as the description.
#pragma once

#include <string>
#include <vector>

struct MenuFileEntry {
    std::wstring name;
    std::wstring explanation;
    bool operator==(const MenuFileEntry&) const = default;
};

// folder ends in a backslash. Directories are passed by; the order is the file system's.
std::vector<MenuFileEntry> ListMenuFiles(const std::wstring& folder);
// The first line of a file, cleaned for one column; "<No explanation>" when nothing could be read.
std::wstring MenuFileExplanation(const std::wstring& path);
