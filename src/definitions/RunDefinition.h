// The two declarative forms of a script command: a run definition (one program and how to start it)
// and an extension-run definition (extension filters tried from the top, each with its commands).
// Both are key=value lines; the reader below is also the one that tells them apart from a script.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

// Reads path line by line: a byte order mark and the line end go, tabs become blanks, the line is
// trimmed; empty lines and "//" comments are skipped and "EOF" alone ends the file. Every other line
// with a key before its first "=" goes to visit as the key (trimmed, A-Z lowered) and the value
// (trimmed, any further "=" kept); visit returns false to stop. A line takes at most bufferChars - 1
// units. False when the file cannot be opened.
using DefinitionLineVisitor = std::function<bool(const std::wstring& key, const std::wstring& value)>;
bool ReadDefinitionLines(const std::wstring& path, size_t bufferChars, const DefinitionLineVisitor& visit);

struct RunDefinition {
    std::wstring commandLine;
    int32_t openMode = 0;  // 0 automatic, 1 run, 2 jump, 3 new window, 4 background
    int32_t multiCommandMode = 0;
    int32_t shiftSilentMode = 0;
    std::wstring bootDir;  // empty: the current folder; "1": the application's own
    int32_t bootMode = 0;  // 0 to 5, the launch modes
    std::wstring run;
    bool operator==(const RunDefinition&) const = default;
};

// One row of an extension-run definition: an empty filter takes every file.
struct ExRunRow {
    std::wstring filter;
    std::wstring command;
    bool operator==(const ExRunRow&) const = default;
};

// Keys the dialogs do not know are passed over; a key given twice keeps its last value. False (and
// the values untouched) when the file cannot be opened.
bool ReadRunDefinition(const std::wstring& path, RunDefinition& definition);
// A "filter" line holds for every "exrun" line behind it, up to the next "filter".
bool ReadExRunDefinition(const std::wstring& path, std::vector<ExRunRow>& rows);

// The whole file as saved, comments and unknown keys gone.
std::vector<uint8_t> RunDefinitionBytes(const RunDefinition& definition);
// Every row carries its own filter line; the run options ahead of them are fixed.
std::vector<uint8_t> ExRunDefinitionBytes(const std::vector<ExRunRow>& rows);

// Replace the file in one step; false when it could not be written, the old file then untouched.
bool WriteRunDefinition(const std::wstring& path, const RunDefinition& definition);
bool WriteExRunDefinition(const std::wstring& path, const std::vector<ExRunRow>& rows);
