// The one thread the program starts: it runs on its own, with its own (empty) main window, and
// ends with the exit code its work gives.
#include <gtest/gtest.h>
#include <windows.h>

#include <atomic>

#include "platform/win32/Win32HostWindows.h"
#include "platform/win32/Win32Processes.h"

namespace {

TEST(Win32Processes, StartThreadRunsTheWorkOnAThreadOfItsOwn) {
    platform::win32::Win32HostWindows windows;
    windows.SetMainWindow(0x1234);
    platform::win32::Win32Processes processes;
    HANDLE done = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    std::atomic<DWORD> thread{0};
    std::atomic<platform::WindowRef> mainWindow{99};
    processes.StartThread(
        [&] {
            thread = GetCurrentThreadId();
            mainWindow = windows.MainWindow();
            SetEvent(done);
            return 96u;
        },
        16384);
    ASSERT_EQ(WAIT_OBJECT_0, WaitForSingleObject(done, 5000));
    EXPECT_NE(GetCurrentThreadId(), thread.load());
    EXPECT_EQ(0u, mainWindow.load());
    EXPECT_EQ(0x1234u, windows.MainWindow());
    CloseHandle(done);
}

}  // namespace
