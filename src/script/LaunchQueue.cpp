#include "script/LaunchQueue.h"

#include <memory>

#include "platform/Platform.h"
#include "services/ProcessLaunch.h"

namespace {

enum LaunchMode : int32_t {
    kShell = 0,
    kShellWaiting = 1,
    kShellPause200 = 2,
    kShellPause500 = 3,
    kBackground = 4,
    kOneAfterAnother = 5,
};

constexpr uint32_t kBackgroundStack = 16384;

// The thread reads nothing but its own copy; its shell launches have no owner, since the main
// window belongs to the interpreter's thread.
uint32_t LaunchInBackground(const LaunchQueue& copy) {
    for (size_t i = 0; i < copy.programs.size(); ++i) {
        ShellLaunch(copy.programs[i], copy.arguments[i], copy.directories[i], false,
                    static_cast<int>(copy.showCommands[i]));
    }
    return kBackgroundLaunchExitCode;
}

}  // namespace

void LaunchQueue::Add(int32_t launchMode, const std::wstring& program, const std::wstring& argumentText,
                      const std::wstring& directory, uint32_t show, uint32_t timeout) {
    mode = launchMode;
    programs.push_back(program);
    arguments.push_back(argumentText);
    directories.push_back(directory);
    showCommands.push_back(show);
    timeouts.push_back(timeout);
}

void LaunchQueue::Clear() {
    programs.clear();
    arguments.clear();
    directories.clear();
    showCommands.clear();
    timeouts.clear();
}

void RunLaunchQueue(LaunchQueue& queue) {
    platform::Processes& processes = platform::Current().processes;
    const size_t count = queue.programs.size();
    switch (queue.mode) {
        case kShell:
        case kShellWaiting:
        case kShellPause200:
        case kShellPause500:
            for (size_t i = 0; i < count; ++i) {
                ShellLaunch(queue.programs[i], queue.arguments[i], queue.directories[i], queue.mode != kShell,
                            static_cast<int>(queue.showCommands[i]));
                if (queue.mode == kShellPause200) processes.Sleep(200);
                if (queue.mode == kShellPause500) processes.Sleep(500);
            }
            break;
        case kBackground: {
            auto copy = std::make_shared<LaunchQueue>(queue);
            processes.StartThread([copy] { return LaunchInBackground(*copy); }, kBackgroundStack);
            break;
        }
        case kOneAfterAnother:
            for (size_t i = 0; i < count; ++i) {
                if (!WaitedLaunch(queue.programs[i], queue.arguments[i], queue.directories[i],
                                  static_cast<int>(queue.showCommands[i]), queue.timeouts[i])) {
                    break;
                }
            }
            break;
        default:
            break;
    }
    queue.Clear();
}
