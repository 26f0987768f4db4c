// Other programs: starting them, waiting for them, handing them files, and the shell's way of opening.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/HostWindows.h"

namespace platform {

// Results of the waits, as WaitForSingleObject and WaitForInputIdle give them.
enum WaitResult : uint32_t { kWaitDone = 0, kWaitTimeout = 258, kWaitFailed = 0xFFFFFFFF };
constexpr uint32_t kWaitForever = 0xFFFFFFFF;  // INFINITE

// What CreateProcessW gets beyond "no application name, no inheritance, our environment".
struct ProcessStart {
    std::wstring commandLine;
    std::wstring directory;      // empty: the caller's
    bool useShowWindow = false;  // STARTF_USESHOWWINDOW with show
    int show = 0;
    uint32_t creationFlags = 0;
    bool inheritHandles = false;
    bool operator==(const ProcessStart&) const = default;
};

// A process started by us. Destroying it closes its handles; the process runs on.
class StartedProcess {
public:
    StartedProcess() = default;
    StartedProcess(const StartedProcess&) = delete;
    StartedProcess& operator=(const StartedProcess&) = delete;
    virtual ~StartedProcess() = default;

    virtual uint32_t Id() = 0;
    // WaitForSingleObject on the process: kWaitDone once it has ended.
    virtual uint32_t Wait(uint32_t timeoutMs) = 0;
    // WaitForInputIdle; on kWaitFailed error holds the system's code.
    virtual uint32_t WaitForIdle(uint32_t timeoutMs, uint32_t& error) = 0;
    virtual void Terminate(uint32_t exitCode) = 0;
    // GetExitCodeProcess: false on failure, with the system's code in error. A process that still
    // runs gives 259.
    virtual bool ExitCode(uint32_t& code, uint32_t& error) = 0;
};

// The SHELLEXECUTEINFOW fields the program sets; the verb and item list stay null.
struct ShellRequest {
    uint32_t mask = 0;
    WindowRef owner = 0;
    std::wstring file;
    std::wstring parameters;
    std::wstring directory;
    int show = 0;
    bool operator==(const ShellRequest&) const = default;
};

class Processes {
public:
    Processes() = default;
    Processes(const Processes&) = delete;
    Processes& operator=(const Processes&) = delete;
    virtual ~Processes() = default;

    // CreateProcessW; null on failure, with the system's error code in error.
    virtual std::unique_ptr<StartedProcess> Start(const ProcessStart& start, uint32_t& error) = 0;
    // The first visible top-level window of the process, in the order FindWindowExW walks the
    // desktop's children; 0 when it has none (yet).
    virtual WindowRef FindVisibleWindow(uint32_t processId) = 0;
    // Posts WM_DROPFILES to the window with a moveable global block (GlobalAlloc flags 8258) that
    // holds these bytes: a DROPFILES header and its file list.
    virtual void PostDropFiles(WindowRef window, const std::vector<uint8_t>& block) = 0;
    // ShellExecuteExW; the result is not looked at by anyone.
    virtual void ExecuteShell(const ShellRequest& request) = 0;

    // A thread of its own with the given stack that runs work and ends with its result as exit code;
    // nobody waits for it, and it ends with the process if it is not done by then.
    virtual void StartThread(std::function<uint32_t()> work, uint32_t stackBytes) = 0;
    // GetTickCount64 and Sleep, so that the waits of a launch can be followed in tests.
    virtual uint64_t Ticks() = 0;
    virtual void Sleep(uint32_t milliseconds) = 0;
    // FormatMessageW of the system's text for an error code (flags 4864, language 1024), as it
    // comes, line end included; empty when the system has none.
    virtual std::wstring ErrorText(uint32_t error) = 0;
};

}  // namespace platform
