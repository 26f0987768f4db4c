// The host's top-level windows, found by their class.
#pragma once

#include <cstdint>

namespace platform {

// A window of another process, by value; 0 is none. Nothing is owned.
using WindowRef = uintptr_t;

class HostWindows {
public:
    HostWindows() = default;
    HostWindows(const HostWindows&) = delete;
    HostWindows& operator=(const HostWindows&) = delete;
    virtual ~HostWindows() = default;

    // The first top-level window of the host's class that the system returns, or 0.
    virtual WindowRef FindHostWindow() = 0;
    virtual void SetForeground(WindowRef window) = 0;
};

}  // namespace platform
