// The programs one line of a script starts, gathered first and then run the way its launch mode
// says: through the shell, waiting or not, on a thread of its own, or one after the other.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

struct LaunchQueue {
    // The launch mode of the last entry added.
    int32_t mode = 0;
    std::vector<std::wstring> programs;
    std::vector<std::wstring> arguments;
    std::vector<std::wstring> directories;
    std::vector<uint32_t> showCommands;
    std::vector<uint32_t> timeouts;

    void Add(int32_t launchMode, const std::wstring& program, const std::wstring& argumentText,
             const std::wstring& directory, uint32_t show, uint32_t timeout);
    bool empty() const { return programs.empty(); }
    void Clear();
};

// What the thread of the background mode ends with.
constexpr uint32_t kBackgroundLaunchExitCode = 96;

// Starts the entries as the queue's mode says (an unknown mode starts nothing) and empties it.
void RunLaunchQueue(LaunchQueue& queue);
