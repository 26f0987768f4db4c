// The switches of Option.exe and the one file argument.
#pragma once

#include <string>
#include <vector>

enum StartSwitch : int {
    kSwitchNone = 0,
    kSwitchExRun = 1,      // "/E": extension-run definition editor
    kSwitchRun = 2,        // "/R": run definition editor
    kSwitchCommands = 3,   // "/D": command definition editor
    kSwitchAuto = 4,       // "/A": tell the file's kind first
    kSwitchG = 5,          // "/G": the option dialog
    kSwitchMenu = 6,       // "/M": menu editor
    kSwitchTerminate = 7,  // "/T": nothing at all
    kSwitchKeyList = 8,    // "/KEYLIST": write key lists
};

struct CommandLine {
    int switchNumber = kSwitchNone;  // the last switch given
    std::wstring file;               // the last plain argument; "none" after "/KEYLIST"
};

// Arguments without the program's own name. Switches are whole arguments, letter case ignored.
CommandLine ParseCommandLine(const std::vector<std::wstring>& arguments);
// No file argument means the option dialog, whatever switch was given.
int EffectiveSwitch(const CommandLine& line);
