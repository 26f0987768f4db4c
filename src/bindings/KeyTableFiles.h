// The key files of the user directory: each the 608 bytes of one key mode as they stand, words
// little-endian, nothing else. A mode without a file uses the built-in table.
#pragma once

#include <string>

#include "bindings/KeyTableSet.h"

// userDirectory ends with a backslash. Mode 1's file is "SerchMode.key", spelt as the host spells it.
std::wstring KeyFilePath(const std::wstring& userDirectory, int mode);

// Each mode from its file, or from the defaults when the file cannot be opened. A short file gives
// its first bytes and leaves the words behind them as they were; nothing is ever told.
void LoadKeyTables(const std::wstring& userDirectory, KeyTableSet& set);
// Writes every mode's file whole or not at all; one that cannot be written keeps what it held, the
// rest are still written, and nothing is told.
void SaveKeyTables(const std::wstring& userDirectory, const KeyTableSet& set);
