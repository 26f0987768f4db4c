// Runs FakeHost.exe, the test's stand-in for a host window, and reads what it logged.
#pragma once

#include <windows.h>

#include <source_location>
#include <string>
#include <vector>

#include "OptionWindow.h"
#include "Process.h"

namespace e2e {

constexpr wchar_t kHostClassName[] = L"{0F04AF43-7B85-46A5-A0A7-6D323A84AD7C}";

struct FakeHostOptions {
    std::wstring title = L"Qor";
    bool hidden = false;
};

// One FakeHost.exe with its own log file, there once the constructor returns and gone with the object.
class FakeHost {
public:
    explicit FakeHost(FakeHostOptions options = {}, std::source_location where = std::source_location::current());
    FakeHost(const FakeHost&) = delete;
    FakeHost& operator=(const FakeHost&) = delete;
    ~FakeHost();

    // Null when the host did not come up (the test has failed then).
    HWND Window() const { return window_; }

    // Every line logged after "ready", e.g. "command 48999", "copydata 1 text", "activate".
    std::vector<std::string> Lines() const;
    // The lines logged since the previous call (or since "ready").
    std::vector<std::string> TakeLines();
    // Only the "command <n>" lines, as numbers.
    std::vector<unsigned> Commands() const;

private:
    std::wstring logPath_;
    Process process_;
    HWND window_ = nullptr;
    size_t taken_ = 0;
};

// Reads a UTF-8 text file into lines without their line ends; shared so that a writer may keep it open.
std::vector<std::string> ReadLogLines(const std::wstring& path);

// The option program beside a fake host on the page "Start" names: `auto& [host, option, dialog] = run;`.
struct OptionBesideHost {
    FakeHost host;
    Process option = StartOption();
    HWND dialog = option ? FindVisibleWindow(option.Id(), L"オプション") : nullptr;
};

}  // namespace e2e
