// Host windows for tests: the windows that exist and which one was brought forward.
#pragma once

#include <vector>

#include "platform/HostWindows.h"

namespace platform::fake {

class FakeHostWindows : public HostWindows {
public:
    WindowRef FindHostWindow() override { return windows_.empty() ? 0 : windows_.front(); }
    void SetForeground(WindowRef window) override { foreground_.push_back(window); }

    // Host windows in the order the system returns them.
    void AddHostWindow(WindowRef window) { windows_.push_back(window); }
    const std::vector<WindowRef>& foreground() const { return foreground_; }

private:
    std::vector<WindowRef> windows_;
    std::vector<WindowRef> foreground_;
};

}  // namespace platform::fake
