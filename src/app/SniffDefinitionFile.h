#pragma once

#include <string>

// What kind of text file "/A" was handed: 1 an extension-run list, 2 a run definition, 0 anything else
// (a script, or a file that cannot be read, which the user is told about).
int SniffDefinitionFile(const std::wstring& path);
