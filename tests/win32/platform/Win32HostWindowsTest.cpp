// What a host window receives from us: commands and copied texts, and which host windows we find.
#include "platform/win32/Win32HostWindows.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <string>
#include <vector>

#include "services/HostHandshake.h"
#include "win32/support/RealHostPlatform.h"

namespace {

using platform::WindowRef;

struct Received {
    HWND window;
    std::wstring what;
};
std::vector<Received> received;

LRESULT CALLBACK HostProc(HWND hwnd, UINT msg, WPARAM wp, LPARAM lp) {
    if (msg == WM_COMMAND) {
        received.push_back({hwnd, L"command " + std::to_wstring(wp) + L" " + std::to_wstring(lp)});
        return 0;
    }
    if (msg == WM_COPYDATA) {
        const auto& copy = *reinterpret_cast<const COPYDATASTRUCT*>(lp);
        const auto* text = static_cast<const wchar_t*>(copy.lpData);
        // The size is longer than the text; every byte it names must be there, zeros behind the text.
        size_t units = copy.cbData / sizeof(wchar_t);
        bool zeros = std::all_of(text + wcslen(text), text + units, [](wchar_t c) { return c == 0; });
        received.push_back({hwnd, L"copydata " + std::to_wstring(copy.dwData) + L" " + std::to_wstring(copy.cbData) +
                                      L" from " + std::to_wstring(wp) + L" " + text + (zeros ? L"" : L" (garbage)")});
        return TRUE;
    }
    return DefWindowProcW(hwnd, msg, wp, lp);
}

class HostWindowsTest : public testing::Test {
protected:
    void SetUp() override {
        if (FindWindowW(platform::win32::kHostClassName, nullptr))
            GTEST_SKIP() << "another host window runs on this desktop";
        testing_support::RegisterWindowClass(platform::win32::kHostClassName, HostProc);
        for (HWND& host : hosts_)
            host = CreateWindowExW(0, platform::win32::kHostClassName, L"host", WS_POPUP, 0, 0, 10, 10, nullptr,
                                   nullptr, GetModuleHandleW(nullptr), nullptr);
        received.clear();
    }
    void TearDown() override {
        for (HWND host : hosts_)
            if (host) DestroyWindow(host);
        UnregisterClassW(platform::win32::kHostClassName, GetModuleHandleW(nullptr));
    }

    testing_support::RealHostPlatform platform;
    platform::win32::Win32HostWindows windows;
    HWND hosts_[2] = {};
};

TEST_F(HostWindowsTest, CommandsAndTextsArriveAsTheHostReadsThem) {
    auto host = reinterpret_cast<WindowRef>(hosts_[1]);
    windows.SetMainWindow(0x1234);
    windows.SendCommand(host, 48999);
    CopyDataToWindow(host, L"C:\\a b.txt", 3);
    CopyNumberedTextToWindow(host, L"x", 12, 0x10000);
    windows.SetMainWindow(0);
    CopyDataToWindow(host, L"", 1);
    std::vector<std::wstring> expected = {L"command 48999 0", L"copydata 3 88 from 4660 C:\\a b.txt",
                                          L"copydata 65536 40 from 4660 12/x", L"copydata 1 8 from 0 "};
    std::vector<std::wstring> texts;
    for (const Received& r : received) {
        EXPECT_EQ(hosts_[1], r.window);
        texts.push_back(r.what);
    }
    EXPECT_EQ(expected, texts);
}

}  // namespace
