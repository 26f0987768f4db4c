// The rows of AllCommand.txt and AllCommand.html, written while the command picker fills its tree.
#pragma once

#include <cstdint>
#include <string>

enum class CommandDumpForm { Text, Html };

// One row: identifier, the text in the tree, the text GetCommandString gives.
std::wstring CommandDumpRow(CommandDumpForm form, uint16_t id, const std::wstring& treeText,
                            const std::wstring& commandText);

// Told before an html row whose command has no text: the tree's text and the identifier.
std::wstring CommandDumpMissingText(const std::wstring& treeText, uint16_t id);

// Where the dump goes: AllCommand.txt or AllCommand.html two folders above the program's.
std::wstring CommandDumpPath(const std::wstring& programDirectory, CommandDumpForm form);

// Writes the dump (U+FEFF, then the rows) whole or not at all; one with no row behind its byte order
// mark writes nothing. A failure says nothing.
void SaveCommandDump(const std::wstring& path, const std::wstring& dump);
