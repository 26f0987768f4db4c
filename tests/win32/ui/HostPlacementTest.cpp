// On plain windows of this process: one of the host's class, one for the dialog, one holding the foreground.
#include "ui/HostPlacement.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <vector>

#include "platform/win32/Win32HostWindows.h"
#include "services/HostHandshake.h"
#include "win32/support/RealHostPlatform.h"

namespace {

using testing_support::PumpMessages;
using testing_support::RegisterWindowClass;

constexpr wchar_t kDialogClass[] = L"OptionTests.Dialog";
int bringToFrontTimers = 0;

// Hands its timer back to the deferred bring-to-front, as the option dialog does.
LRESULT CALLBACK DialogProc(HWND hwnd, UINT msg, WPARAM wp, LPARAM lp) {
    if (msg == WM_TIMER && wp == ui::kBringToFrontTimer) {
        ++bringToFrontTimers;
        ui::DeferredBringToFront(hwnd);
        return 0;
    }
    return DefWindowProcW(hwnd, msg, wp, lp);
}

HWND CreateTopLevel(const wchar_t* className, RECT rect, HWND owner = nullptr) {
    return CreateWindowExW(0, className, L"test", WS_POPUP | WS_CAPTION | WS_VISIBLE, rect.left, rect.top,
                           rect.right - rect.left, rect.bottom - rect.top, owner, nullptr, GetModuleHandleW(nullptr),
                           nullptr);
}

void HoldCtrl(bool held) {
    BYTE keys[256];
    GetKeyboardState(keys);
    keys[VK_CONTROL] = held ? 0x80 : 0;
    SetKeyboardState(keys);
}

// Destroying a shown window that has been active costs Wine seconds without a window manager, so
// the shown windows live as long as the suite and each test puts the dialog back as it was made.
class HostPlacementTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        RegisterWindowClass(kDialogClass, DialogProc);
        other_ = CreateTopLevel(L"STATIC", {0, 0, 50, 50});
        dialog_ = CreateTopLevel(kDialogClass, kDialogPlace);
    }

    void SetUp() override {
        if (FindWindowW(platform::win32::kHostClassName, nullptr))
            GTEST_SKIP() << "another host window runs on this desktop";
        Reset();
    }
    void Reset() {
        SetWindowLongPtrW(dialog_, GWL_EXSTYLE, 0);
        SetWindowPos(dialog_, HWND_NOTOPMOST, kDialogPlace.left, kDialogPlace.top, 0, 0, SWP_NOSIZE | SWP_FRAMECHANGED);
        SetForegroundWindow(other_);
        PumpMessages(50);
    }
    void TearDown() override {
        // The host needs no display: hidden, it goes at once.
        if (host_) DestroyWindow(host_);
        host_ = nullptr;
        // Other tests register the host's class their own way.
        UnregisterClassW(platform::win32::kHostClassName, GetModuleHandleW(nullptr));
        HoldCtrl(false);
    }

    void StartHost() {
        RegisterWindowClass(platform::win32::kHostClassName, DefWindowProcW);
        host_ = CreateWindowExW(0, platform::win32::kHostClassName, L"host", WS_POPUP | WS_CAPTION, 100, 100, 640, 480,
                                nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
    }
    // Left, top, width and height.
    static std::vector<LONG> Place(HWND window) {
        RECT rect{};
        GetWindowRect(window, &rect);
        return {rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top};
    }

    static constexpr RECT kDialogPlace{5, 7, 305, 207};
    static inline HWND other_ = nullptr;
    static inline HWND dialog_ = nullptr;
    testing_support::RealHostPlatform platform;
    HWND host_ = nullptr;
};

TEST_F(HostPlacementTest, EachModePlacesTheDialogAndBringsItForward) {
    // clang-format off
    struct Case { int mode; bool topmost; bool toolWindow; };
    // clang-format on
    const Case cases[] = {{0, false, false}, {1, true, false}, {2, true, true}, {4, false, true}, {7, false, false}};
    ui::PrepareOptionDialog(dialog_, 0);
    EXPECT_EQ((std::vector<LONG>{5, 7, 300, 200}), Place(dialog_)) << "no host: no centring";
    StartHost();
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << "mode " << c.mode);
        Reset();
        ui::PrepareOptionDialog(dialog_, c.mode);
        PumpMessages(50);
        EXPECT_EQ((std::vector<LONG>{270, 240, 300, 200}), Place(dialog_)) << "centred on the host, size kept";
        const LONG_PTR style = GetWindowLongPtrW(dialog_, GWL_EXSTYLE);
        EXPECT_EQ(std::make_pair(c.topmost, c.toolWindow),
                  std::make_pair((style & WS_EX_TOPMOST) != 0, (style & WS_EX_TOOLWINDOW) != 0));
        EXPECT_EQ(dialog_, GetForegroundWindow());
    }
}

TEST_F(HostPlacementTest, HoldingCtrlKeepsTheDialogBackUntilTheKeyIsUp) {
    HoldCtrl(true);
    bringToFrontTimers = 0;
    ui::PrepareOptionDialog(dialog_, 0);
    PumpMessages(300);
    EXPECT_EQ(other_, GetForegroundWindow());
    EXPECT_GE(bringToFrontTimers, 2) << "tried again every 50 ms";

    HoldCtrl(false);
    PumpMessages(150);
    EXPECT_EQ(dialog_, GetForegroundWindow());
    int timers = bringToFrontTimers;
    PumpMessages(150);
    EXPECT_EQ(timers, bringToFrontTimers) << "the timer stops once it came forward";
}

}  // namespace
