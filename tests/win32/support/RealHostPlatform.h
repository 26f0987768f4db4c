// The real host windows, shared memory and processes, with everything else fake: a test sees each
// message box instead of blocking on it, and keeps the registry and files to itself.
#pragma once

#include <windows.h>

#include <string>

#include "e2e/support/Process.h"
#include "platform/fake/FakePlatform.h"
#include "platform/win32/Win32HostWindows.h"
#include "platform/win32/Win32Processes.h"
#include "platform/win32/Win32SharedMemory.h"

namespace testing_support {

class RealHostPlatform {
public:
    RealHostPlatform() = default;
    RealHostPlatform(const RealHostPlatform&) = delete;
    RealHostPlatform& operator=(const RealHostPlatform&) = delete;

    platform::fake::FakePlatform& fake() { return fake_; }

private:
    platform::fake::FakePlatform fake_;
    platform::win32::Win32HostWindows windows_;
    platform::win32::Win32SharedMemory sharedMemory_;
    platform::win32::Win32Processes processes_;
    platform::Platform platform_{fake_.registry(), fake_.files(),     fake_.environment(), fake_.prompts(),
                                 fake_.system(),   windows_,          sharedMemory_,       processes_,
                                 fake_.shell(),    fake_.codePages(), fake_.images()};
    platform::Installed installed_{platform_};
};

// Dispatches what arrives for this thread's windows for about the given time.
inline void PumpMessages(DWORD milliseconds) {
    DWORD start = GetTickCount();
    MSG msg;
    do {
        while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&msg);
        Sleep(5);
    } while (GetTickCount() - start < milliseconds);
}

// Registers a window class of this program whose windows the procedure handles.
inline void RegisterWindowClass(const wchar_t* name, WNDPROC procedure) {
    WNDCLASSEXW wc{};
    wc.cbSize = sizeof(wc);
    wc.lpfnWndProc = procedure;
    wc.hInstance = GetModuleHandleW(nullptr);
    wc.lpszClassName = name;
    RegisterClassExW(&wc);
}

// The system's own text for an error code, as a message box shows it.
inline std::wstring SystemText(DWORD error) {
    wchar_t* text = nullptr;
    FormatMessageW(FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                   error, 0, reinterpret_cast<wchar_t*>(&text), 0, nullptr);
    std::wstring result = text ? text : L"";
    LocalFree(text);
    return result;
}

using e2e::TestDirectory;

}  // namespace testing_support
