#pragma once

#include "platform/HostWindows.h"

namespace platform::win32 {

// The class of every top-level window of the host.
constexpr const wchar_t* kHostClassName = L"{0F04AF43-7B85-46A5-A0A7-6D323A84AD7C}";

class Win32HostWindows : public HostWindows {
public:
    WindowRef FindHostWindow() override;
    void SetForeground(WindowRef window) override;
};

}  // namespace platform::win32
