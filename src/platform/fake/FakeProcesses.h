// Processes for tests: what each started program will do, and a record of what the program did
// with it. Time passes only when the program sleeps.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/Processes.h"

namespace platform::fake {

// How the programs started from now on behave.
struct FakeProgram {
    bool starts = true;
    uint32_t startError = 2;  // ERROR_FILE_NOT_FOUND
    uint32_t waitResult = kWaitDone;
    uint32_t idleResult = kWaitDone;
    uint32_t idleError = 0;
    // Walks of the window list that find nothing before its window shows; -1: it never shows one.
    int walksBeforeWindow = 0;
    WindowRef window = 0x5150;
    uint32_t exitCode = 0;
    uint32_t exitCodeError = 0;  // not 0: reading the exit code fails with it
};

struct PostedDrop {
    WindowRef window;
    std::vector<uint8_t> block;
    bool operator==(const PostedDrop&) const = default;
};

class FakeProcesses : public Processes {
public:
    std::unique_ptr<StartedProcess> Start(const ProcessStart& start, uint32_t& error) override;
    WindowRef FindVisibleWindow(uint32_t processId) override;
    void PostDropFiles(WindowRef window, const std::vector<uint8_t>& block) override;
    void ExecuteShell(const ShellRequest& request) override { shellRequests_.push_back(request); }
    // Runs the work on a thread of its own and waits for it, so that tests see what it did.
    void StartThread(std::function<uint32_t()> work, uint32_t stackBytes) override;
    uint64_t Ticks() override { return ticks_; }
    void Sleep(uint32_t milliseconds) override { ticks_ += milliseconds; }
    std::wstring ErrorText(uint32_t error) override;

    void SetProgram(const FakeProgram& program) { program_ = program; }
    // The text of an error code; others get "Error <code>.\r\n".
    void SetErrorText(uint32_t error, std::wstring text) { errorTexts_[error] = std::move(text); }

    const std::vector<ProcessStart>& starts() const { return starts_; }
    const std::vector<ShellRequest>& shellRequests() const { return shellRequests_; }
    const std::vector<PostedDrop>& drops() const { return drops_; }
    // "wait <ms>", "idle <ms>", "terminate <code>", "exit code", "close" for each started process, in turn.
    const std::vector<std::wstring>& events() const { return *events_; }
    int walks() const { return walks_; }
    // The stack size asked for and the exit code of each thread, in turn.
    const std::vector<std::pair<uint32_t, uint32_t>>& threads() const { return threads_; }

private:
    FakeProgram program_;
    std::vector<ProcessStart> starts_;
    std::vector<ShellRequest> shellRequests_;
    std::vector<PostedDrop> drops_;
    std::shared_ptr<std::vector<std::wstring>> events_ = std::make_shared<std::vector<std::wstring>>();
    std::map<uint32_t, std::wstring> errorTexts_;
    uint64_t ticks_ = 1000000;
    std::vector<std::pair<uint32_t, uint32_t>> threads_;
    int walks_ = 0;
};

}  // namespace platform::fake
