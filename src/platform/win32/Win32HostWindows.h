#pragma once

#include "platform/HostWindows.h"

namespace platform::win32 {

// The class of every top-level window of the host.
constexpr const wchar_t* kHostClassName = L"{0F04AF43-7B85-46A5-A0A7-6D323A84AD7C}";

class Win32HostWindows : public HostWindows {
public:
    WindowRef FindHostWindow() override;
    WindowRef FindWindowByTitle(const std::wstring& title) override;
    std::vector<WindowRef> AllHostWindows() override;
    void SetForeground(WindowRef window) override;
    void ForceForeground(WindowRef window) override;
    void SendCommand(WindowRef window, uint16_t id) override;
    bool IsWindow(WindowRef window) override;
    void PostWindowMessage(WindowRef window, uint32_t message, uintptr_t wParam, intptr_t lParam) override;
    intptr_t SendWindowMessage(WindowRef window, uint32_t message, uintptr_t wParam, intptr_t lParam) override;
    void SendCopyData(WindowRef window, WindowRef sender, uint32_t code, const std::wstring& text,
                      uint32_t cbData) override;
    WindowRef MainWindow() override;
    bool IsKeyDown(int virtualKey) override;
    void SetMainWindow(WindowRef window) override;
};

}  // namespace platform::win32
