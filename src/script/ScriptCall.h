// "call" and "exec": a command line started as a plain process. "call" waits for it, with the
// time-out of the run options and the question whether to end it; "exec" only reads its exit code,
// which for a program still running is 259.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

enum class CallKind { Call, Exec };

struct CallSettings {
    // The start directory: bootdir as it stands ("1" included), else the now-directory, else none.
    std::wstring bootDirectory;
    std::wstring nowDirectory;
    int show = 1;
    uint32_t timeout = 0xFFFFFFFF;
    uint32_t runWait = 0;
};

// The result text: the exit code in decimal, "259" when the user ended the program. Empty when the
// program could not start (the user was shown why) or its exit code could not be read.
std::optional<std::wstring> CallProgram(CallKind kind, const std::wstring& commandLine, const CallSettings& settings);
