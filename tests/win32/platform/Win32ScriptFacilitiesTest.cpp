// A thread of its own with its own (empty) main window, and the folders of the shell's name space.
#include <gtest/gtest.h>
#include <objbase.h>
#include <windows.h>

#include <atomic>

#include "platform/win32/Win32FileSystem.h"
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

// Paths of the shell's name space: "My Computer" is a folder; a file's path is no name-space path.
TEST(Win32FileSystem, ShellFoldersOfTheNameSpace) {
    CoInitialize(nullptr);
    platform::win32::Win32FileSystem files;
    EXPECT_TRUE(files.IsShellFolder(L"::{20D04FE0-3AEA-1069-A2D8-08002B30309D}"));
    EXPECT_FALSE(files.IsShellFolder(L"::{00000000-0000-0000-0000-000000000000}"));
    CoUninitialize();
}

}  // namespace
