// The host's top-level windows, found by their class, and what the program says to them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

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
    // FindWindowW by title alone: a top-level window of any class with that title, or 0.
    virtual WindowRef FindWindowByTitle(const std::wstring& title) = 0;
    // Every top-level window of the host's class, in the order the system returns them.
    virtual std::vector<WindowRef> AllHostWindows() = 0;
    // SetForegroundWindow and nothing more.
    virtual void SetForeground(WindowRef window) = 0;
    // Brings a window forward even when another process holds the foreground: joins the input of
    // the foreground window's thread and lifts the foreground lock time-out for the moment.
    virtual void ForceForeground(WindowRef window) = 0;
    // SendMessageW of WM_COMMAND with the id as wParam and 0 as lParam.
    virtual void SendCommand(WindowRef window, uint16_t id) = 0;
    // IsWindow: false for 0 and for a window that has gone.
    virtual bool IsWindow(WindowRef window) = 0;
    // PostMessageW, which returns at once, and SendMessageW, which waits for the window's answer
    // with no time-out.
    virtual void PostWindowMessage(WindowRef window, uint32_t message, uintptr_t wParam, intptr_t lParam) = 0;
    virtual intptr_t SendWindowMessage(WindowRef window, uint32_t message, uintptr_t wParam, intptr_t lParam) = 0;
    // SendMessageW of WM_COPYDATA from sender: dwData the code, lpData the text with its
    // terminator and zeros behind it up to cbData bytes.
    virtual void SendCopyData(WindowRef window, WindowRef sender, uint32_t code, const std::wstring& text,
                              uint32_t cbData) = 0;

    // The main window of the calling thread: the one dialog the program shows, 0 on other threads
    // and before the dialog exists.
    virtual WindowRef MainWindow() = 0;
    // GetKeyState of a virtual key: true while it is held down.
    virtual bool IsKeyDown(int virtualKey) = 0;
    virtual void SetMainWindow(WindowRef window) = 0;
};

}  // namespace platform
