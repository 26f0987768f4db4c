// Host windows for tests: the windows that exist, and everything said to them.
#pragma once

#include <map>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "platform/HostWindows.h"

namespace platform::fake {

struct SentCommand {
    WindowRef window;
    uint16_t id;
    bool operator==(const SentCommand&) const = default;
};

// A message posted or sent by number.
struct SentMessage {
    WindowRef window;
    uint32_t message;
    uintptr_t wParam;
    intptr_t lParam;
    bool posted;  // PostMessageW; false for SendMessageW
    bool operator==(const SentMessage&) const = default;
};

struct SentCopyData {
    WindowRef window;
    WindowRef sender;
    uint32_t code;
    std::wstring text;
    uint32_t cbData;
    bool operator==(const SentCopyData&) const = default;
};

class FakeHostWindows : public HostWindows {
public:
    WindowRef FindHostWindow() override { return windows_.empty() ? 0 : windows_.front(); }
    WindowRef FindWindowByTitle(const std::wstring& title) override {
        auto found = titled_.find(title);
        return found == titled_.end() ? 0 : found->second;
    }
    std::vector<WindowRef> AllHostWindows() override { return windows_; }
    void SetForeground(WindowRef window) override { foreground_.push_back(window); }
    void ForceForeground(WindowRef window) override { forced_.push_back(window); }
    void SendCommand(WindowRef window, uint16_t id) override { commands_.push_back({window, id}); }
    // The host windows and the titled windows exist.
    bool IsWindow(WindowRef window) override {
        if (!window) return false;
        for (WindowRef host : windows_)
            if (host == window) return true;
        for (const auto& [title, titled] : titled_)
            if (titled == window) return true;
        return false;
    }
    void PostWindowMessage(WindowRef window, uint32_t message, uintptr_t wParam, intptr_t lParam) override {
        messages_.push_back({window, message, wParam, lParam, true});
    }
    intptr_t SendWindowMessage(WindowRef window, uint32_t message, uintptr_t wParam, intptr_t lParam) override {
        messages_.push_back({window, message, wParam, lParam, false});
        return 0;
    }
    void SendCopyData(WindowRef window, WindowRef sender, uint32_t code, const std::wstring& text,
                      uint32_t cbData) override {
        copies_.push_back({window, sender, code, text, cbData});
    }
    // Each thread has its own main window, as in the real program; a new thread has none.
    WindowRef MainWindow() override {
        auto found = main_.find(std::this_thread::get_id());
        return found == main_.end() ? 0 : found->second;
    }
    void SetMainWindow(WindowRef window) override { main_[std::this_thread::get_id()] = window; }
    bool IsKeyDown(int virtualKey) override { return keysDown_.count(virtualKey) != 0; }
    void SetKeyDown(int virtualKey, bool down) {
        if (down)
            keysDown_.insert(virtualKey);
        else
            keysDown_.erase(virtualKey);
    }

    // Host windows in the order the system returns them.
    void AddHostWindow(WindowRef window) { windows_.push_back(window); }
    // A window of another class that a title finds; 0 takes it away again.
    void SetTitledWindow(const std::wstring& title, WindowRef window) {
        if (window) {
            titled_[title] = window;
        } else {
            titled_.erase(title);
        }
    }
    // Windows given by SetForeground, and those forced forward, in turn.
    const std::vector<WindowRef>& foreground() const { return foreground_; }
    const std::vector<WindowRef>& forced() const { return forced_; }
    const std::vector<SentCommand>& commands() const { return commands_; }
    const std::vector<SentCopyData>& copies() const { return copies_; }
    const std::vector<SentMessage>& messages() const { return messages_; }

private:
    std::vector<WindowRef> windows_;
    std::map<std::wstring, WindowRef> titled_;
    std::vector<WindowRef> foreground_;
    std::vector<WindowRef> forced_;
    std::vector<SentCommand> commands_;
    std::vector<SentCopyData> copies_;
    std::vector<SentMessage> messages_;
    std::map<std::thread::id, WindowRef> main_;
    std::set<int> keysDown_;
};

}  // namespace platform::fake
