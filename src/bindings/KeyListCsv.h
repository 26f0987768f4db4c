// A key list as text: what "/KEYLIST" and the key page's save button write.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "bindings/KeyNameTable.h"
#include "definitions/CommandCatalog.h"

// Behind the base name of a key list file, by modifier; ".csv" follows.
inline constexpr const wchar_t* kKeyListSuffixes[] = {L"", L" Shift", L" Ctrl", L" Ctrl+Shift"};

// The file name the key page's save button gives the block of (mode, modifier): "Command", "Search",
// then "mode3" to "mode9", the modifier's suffix and ".csv".
std::wstring PageKeyListName(int mode, int modifier);

struct KeyListRow {
    std::wstring key;
    std::wstring command;
};

// A byte order mark, then one line "key","command" with CR LF per row. Nothing is escaped: a
// quotation mark in a command text goes out as it stands.
std::wstring KeyListCsvText(const std::vector<KeyListRow>& rows);

// The 76 keys of one block, each with its command's text ("---" for none).
std::vector<KeyListRow> KeyListRows(std::span<const uint16_t, kKeyCount> block, const CommandCatalog& catalog,
                                    const platform::ResourceLibrary* library);

// Writes the block's list to the file whole; false when it could not.
bool WriteKeyListCsv(const std::wstring& path, std::span<const uint16_t, kKeyCount> block,
                     const CommandCatalog& catalog, const platform::ResourceLibrary* library);
