#include "platform/fake/FakeProcesses.h"

#include <thread>

namespace platform::fake {

namespace {

constexpr uint32_t kFirstProcessId = 4000;

class FakeStarted : public StartedProcess {
public:
    FakeStarted(std::shared_ptr<std::vector<std::wstring>> events, uint32_t id, const FakeProgram& program)
        : events_(std::move(events)), id_(id), program_(program) {}
    ~FakeStarted() override { events_->push_back(L"close"); }

    uint32_t Id() override { return id_; }
    uint32_t Wait(uint32_t timeoutMs) override {
        events_->push_back(L"wait " + std::to_wstring(timeoutMs));
        return program_.waitResult;
    }
    uint32_t WaitForIdle(uint32_t timeoutMs, uint32_t& error) override {
        events_->push_back(L"idle " + std::to_wstring(timeoutMs));
        error = program_.idleError;
        return program_.idleResult;
    }
    void Terminate(uint32_t exitCode) override { events_->push_back(L"terminate " + std::to_wstring(exitCode)); }
    bool ExitCode(uint32_t& code, uint32_t& error) override {
        events_->push_back(L"exit code");
        code = program_.exitCode;
        error = program_.exitCodeError;
        return program_.exitCodeError == 0;
    }

private:
    std::shared_ptr<std::vector<std::wstring>> events_;
    uint32_t id_;
    FakeProgram program_;
};

}  // namespace

std::unique_ptr<StartedProcess> FakeProcesses::Start(const ProcessStart& start, uint32_t& error) {
    starts_.push_back(start);
    if (!program_.starts) {
        error = program_.startError;
        return nullptr;
    }
    walks_ = 0;
    return std::make_unique<FakeStarted>(events_, kFirstProcessId + static_cast<uint32_t>(starts_.size()), program_);
}

WindowRef FakeProcesses::FindVisibleWindow(uint32_t processId) {
    // Only the last process started has windows.
    if (processId != kFirstProcessId + starts_.size()) return 0;
    int walk = walks_++;
    if (program_.walksBeforeWindow < 0 || walk < program_.walksBeforeWindow) return 0;
    return program_.window;
}

void FakeProcesses::PostDropFiles(WindowRef window, const std::vector<uint8_t>& block) {
    drops_.push_back({window, block});
}

void FakeProcesses::StartThread(std::function<uint32_t()> work, uint32_t stackBytes) {
    uint32_t exitCode = 0;
    std::thread([&] { exitCode = work(); }).join();
    threads_.emplace_back(stackBytes, exitCode);
}

std::wstring FakeProcesses::ErrorText(uint32_t error) {
    auto found = errorTexts_.find(error);
    return found != errorTexts_.end() ? found->second : L"Error " + std::to_wstring(error) + L".\r\n";
}

}  // namespace platform::fake
