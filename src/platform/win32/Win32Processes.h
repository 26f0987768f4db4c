#pragma once

#include "platform/Processes.h"

namespace platform::win32 {

class Win32Processes : public Processes {
public:
    std::unique_ptr<StartedProcess> Start(const ProcessStart& start, uint32_t& error) override;
    WindowRef FindVisibleWindow(uint32_t processId) override;
    void PostDropFiles(WindowRef window, const std::vector<uint8_t>& block) override;
    void ExecuteShell(const ShellRequest& request) override;
    void StartThread(std::function<uint32_t()> work, uint32_t stackBytes) override;
    uint64_t Ticks() override;
    void Sleep(uint32_t milliseconds) override;
    std::wstring ErrorText(uint32_t error) override;
};

}  // namespace platform::win32
