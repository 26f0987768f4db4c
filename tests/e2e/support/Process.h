// Starting programs from the end-to-end tests: Option.exe from the staged installation, and anything else.
#pragma once

#include <windows.h>

#include <optional>
#include <source_location>
#include <string>
#include <vector>

#include "Handles.h"

namespace e2e {

// How long a program that should end by itself may take under a cold Wine.
constexpr DWORD kDefaultTimeoutMs = 20000;
// The exit code a process gets when a test has to kill it.
constexpr DWORD kKilledExitCode = 0xDEAD;

// A variable set in the environment a child inherits.
struct EnvVar {
    std::wstring name;
    std::wstring value;
};
using EnvChanges = std::vector<EnvVar>;

// The folder that holds the running test executable (and FakeHost.exe beside it), no trailing backslash.
std::wstring TestDirectory();
// Root of the staged installation: OPTION_STAGE, or build/stage seen from the test executable.
std::wstring StageRoot();
// <root>\command\Option\Option.exe
std::wstring OptionExePath();

// A child process; killed on destruction if it still runs.
class Process {
public:
    Process() = default;
    Process(Process&&) = default;
    // Only ever into an empty Process.
    Process& operator=(Process&&) = default;
    ~Process();

    // Starts program with args; an empty Process (and a test failure) when it cannot start.
    static Process Start(const std::wstring& program, const std::vector<std::wstring>& args, const EnvChanges& env = {},
                         std::source_location where = std::source_location::current());

    explicit operator bool() const { return static_cast<bool>(process_); }
    DWORD Id() const { return id_; }
    HANDLE Handle() const { return process_.get(); }
    bool Running() const;
    // The exit code, or nullopt when the process still runs after timeoutMs.
    std::optional<DWORD> Wait(DWORD timeoutMs) const;
    // The exit code; on time-out the test fails, the process is killed and kKilledExitCode comes back.
    DWORD WaitOrKill(DWORD timeoutMs = kDefaultTimeoutMs, std::source_location where = std::source_location::current());
    // Closes the program's dialog with a button as the user would, then waits as WaitOrKill does.
    DWORD CloseDialog(HWND dialog, int button = IDCANCEL, std::source_location where = std::source_location::current());
    void Kill();

private:
    UniqueHandle process_;
    DWORD id_ = 0;
};

// Starts the staged Option.exe with args and env and leaves it running.
Process StartOption(const std::vector<std::wstring>& args = {}, const EnvChanges& env = {},
                    std::source_location where = std::source_location::current());
// Runs the staged Option.exe to its end and gives its exit code; a time-out fails the test and kills it.
DWORD RunOption(const std::vector<std::wstring>& args = {}, const EnvChanges& env = {},
                DWORD timeoutMs = kDefaultTimeoutMs, std::source_location where = std::source_location::current());

}  // namespace e2e
