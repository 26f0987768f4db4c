// Where the program and the user's files live: the program directory, the application root two
// levels above it, and the user directory chosen by UserDirMode. Each is worked out once per process.
#pragma once

#include <optional>
#include <string>

class UserDirectories {
public:
    // The running program's directory, with its trailing backslash.
    const std::wstring& ProgramDirectory();
    // The program directory + "..\..\", normalised; with a trailing backslash.
    std::wstring ApplicationRoot();
    // The user directory, with a trailing backslash; the first call fixes it for the process.
    const std::wstring& UserDirectory();

private:
    std::wstring ComputeUserDirectory();

    std::optional<std::wstring> programDirectory_;
    std::optional<std::wstring> userDirectory_;
};
