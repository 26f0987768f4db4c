// The data files of the macro helper: one small file per tab beside the program, in a folder of the
// language in force. The first line holds "macro<TAB>information" entries separated by "/"; the file of
// the environment tab holds only variable names, whose values are looked up when it is read.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

// The helper's tabs, in the order of their buttons.
enum MacroHelperMode : int32_t {
    kMacroHelperQorPaths = 0,
    kMacroHelperReplaceMacros = 1,
    kMacroHelperEnvironment = 2,
    kMacroHelperOnOff = 3,
    kMacroHelperMousePosition = 4,
    kMacroHelperStatusArea = 5,
};
constexpr int32_t kMacroHelperModeCount = 6;

inline constexpr std::array<const wchar_t*, kMacroHelperModeCount> kMacroHelperFiles = {
    L"qor_path.txt", L"macro_input.txt", L"OS_path.txt", L"on_off.txt", L"mouse_pos.txt", L"status_area.txt",
};

// Shown once when a file holds an entry without a tab.
inline constexpr const wchar_t* kMacroHelperFormatError = L"Error resorce text.\n";

// programDirectory ends with a backslash; languageTag is the NLS value with its leading dot. Empty
// for a mode outside 0 to 5.
std::wstring MacroHelperFilePath(const std::wstring& programDirectory, const std::wstring& languageTag, int32_t mode);

struct MacroHelperRow {
    std::wstring macro;
    // From the tab on, the tab included; the last entry of a file keeps the line end as well.
    std::wstring information;
    bool operator==(const MacroHelperRow&) const = default;
};

struct MacroHelperOffer {
    // The entries before the first one without a tab.
    std::vector<MacroHelperRow> rows;
    // An entry without a tab ended the list: the user is to be told.
    bool malformed = false;
    bool operator==(const MacroHelperOffer&) const = default;
};

// The first line of the file, at most 32766 units, byte order marks removed; empty when the file
// cannot be opened.
std::wstring ReadMacroHelperText(const std::wstring& path);
// The environment tab's names, "/"-separated, become "name<TAB>value" entries joined by "/". A name
// the environment does not know keeps itself as its value.
std::wstring EnvironmentEntries(const std::wstring& names);
// Cuts the text at every "/", empty parts included, into rows.
MacroHelperOffer SplitMacroHelperOffer(const std::wstring& text);
// The whole fill of one tab: the file of the mode, read and cut.
MacroHelperOffer LoadMacroHelperOffer(const std::wstring& programDirectory, const std::wstring& languageTag,
                                      int32_t mode);
