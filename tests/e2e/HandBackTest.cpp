// What the host sees of a run that ends at once: brought forward again when it asked for that.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/FakeHostProcess.h"
#include "support/HostHandshake.h"
#include "support/Process.h"

namespace {

// Another window takes the foreground, so that coming forward is a change the host logs.
class OtherWindow {
public:
    OtherWindow() {
        window_ = CreateWindowExW(0, L"STATIC", L"other", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50, nullptr, nullptr,
                                  nullptr, nullptr);
        SetForegroundWindow(window_);
        Pump();
    }
    ~OtherWindow() { DestroyWindow(window_); }

    static void Pump() {
        MSG msg;
        for (int i = 0; i < 20; ++i) {
            while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&msg);
            Sleep(10);
        }
    }

private:
    HWND window_;
};

TEST(HandBack, TheHostComesForwardOnlyWhenItAskedExactlyForThat) {
    struct Case {
        const char* what;
        std::wstring switches;
        bool forward;
    };
    const Case cases[] = {
        {"reactivate 1", e2e::SwitchString(0, 1, 1, 2, 64, L"None"), true},
        {"reactivate 1 with the word in other case", e2e::SwitchString(2, 1, 1, 2, 64, L"share"), true},
        {"reactivate 2", e2e::SwitchString(0, 2, 1, 2, 64, L"None"), false},
        {"nine fields", L"0:1:1:2:64:0:0:0:None", false},
        {"eleven fields", L"0:1:1:2:64:0:0:0:None:x:y", false},
    };
    e2e::FakeHost host;
    ASSERT_TRUE(host.Window());
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        OtherWindow other;
        host.TakeLines();
        EXPECT_EQ(0u, e2e::RunOption({L"/T", L"C:\\none.txt"}, {e2e::HostSwitch(c.switches)}));
        if (c.forward) EXPECT_TRUE(host.WaitForLine("activate", 3000));
        OtherWindow::Pump();
        EXPECT_EQ(c.forward, GetForegroundWindow() == host.Window());
    }
}

TEST(HandBack, ARunningCopyDoesNotStopAnother) {
    // The mark a first copy leaves; a second copy must start and end as usual beside it.
    HANDLE first = CreateMutexW(nullptr, FALSE, L"ExCommand.Option.exe");
    ASSERT_NE(nullptr, first);
    EXPECT_EQ(0u, e2e::RunOption({L"/T", L"x"}));
    EXPECT_EQ(0u, e2e::RunOption({L"/T", L"x"}));
    CloseHandle(first);
}

}  // namespace
