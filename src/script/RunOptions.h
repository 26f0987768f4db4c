// How run, shell and exrun start programs: options a script sets line by line. The table is shared
// with included scripts; each frame keeps its own record of it, read again after every include.
#pragma once

#include <cstdint>
#include <string>

#include "script/TextMap.h"

// A bootdir of "1" starts a program in its own directory.
constexpr wchar_t kProgramsOwnDirectory[] = L"1";

// Option key to its text: numbers as "%d", flags as "1" or "0".
class RunOptionTable : public TextMap {};

struct RunOptions {
    std::wstring commandLineOption;
    std::wstring bootDir;
    int32_t bootMode = 0;
    int32_t showWindow = 0;
    int32_t timeout = 0;
    int32_t runWait = 0;
    int32_t sendInfoMode = 0;
    bool multiCommandMode = false;
    bool shiftSilentMode = false;
    std::wstring filter;
    int32_t exitLoopCount = 0;
    std::wstring checkGrammar;
    int32_t openMode = 0;
};

// The thirteen keys with the values a new frame starts from.
void FillRunOptionDefaults(RunOptionTable& table);
// The record of what the table holds; a missing key reads as the empty text.
RunOptions ReadRunOptions(const RunOptionTable& table);
// Sets one option in the table and in the record: numbers are read with _wtoi and kept as "%d",
// flags are "1" only for exactly 1. False when the key is no option.
bool SetRunOption(RunOptionTable& table, RunOptions& options, const std::wstring& key, const std::wstring& text);
