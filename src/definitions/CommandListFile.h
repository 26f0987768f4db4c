// The six tab-separated lists in the user directory that name the user-extensible commands.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

// In the order they are read: a later list overrides an earlier one for the same identifier.
inline constexpr const wchar_t* kCommandListFiles[] = {
    L"ExternalDefCommand.txt", L"ExternalUserCommand.txt", L"ScriptCommand.txt",
    L"ScriptNaviCommand.txt",  L"UserMenuCommand.txt",     L"PlugInCommand.txt",
};

// One data line. The comment is the command's name everywhere it is shown.
struct CommandListEntry {
    int32_t id = 0;
    std::wstring communication;
    std::wstring condition;
    std::wstring commandLine;
    std::wstring comment;
    bool operator==(const CommandListEntry&) const = default;
};

// A data line's five fields as the file has them: identifier, communication code, condition code,
// command line, comment. The older four-field form comes with an empty communication code.
using CommandListLine = std::array<std::wstring, 5>;

// The data lines of a list, in file order, as their texts. False when the file cannot be opened.
bool ReadCommandListLines(const std::wstring& path, std::vector<CommandListLine>& lines);

// The data lines of a list, in file order. False when the file cannot be opened (nothing is shown).
// Byte order marks anywhere are dropped, lines are trimmed, "//" lines skipped, "EOF" ends the list;
// only lines of five fields, or the older four without the communication code, are data.
bool ReadCommandList(const std::wstring& path, std::vector<CommandListEntry>& entries);
