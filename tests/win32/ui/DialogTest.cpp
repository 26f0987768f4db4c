// How a modal dialog ends, what reaches its handlers and what the sender gets back.
#include "ui/Dialog.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <stdexcept>

#include "win32/resources/FrameworkTestRes.h"
#include "win32/ui/ScriptedDialog.h"

namespace {

using testing_support::FrameworkTest;
using testing_support::ScriptedDialog;
using Seen = std::vector<std::wstring>;

constexpr UINT kStart = WM_APP + 1;  // posted by OnInitDialog: the test's actions begin

using DialogTest = FrameworkTest;

// Under Wine without a window manager every dialog shown costs two seconds as it goes away, so
// the cases here are few and each stands for one way out of the loop.
TEST_F(DialogTest, AModalDialogReturnsTheCodeItWasEndedWith) {
    const struct {
        const char* how;
        std::function<void(ScriptedDialog&)> act;  // run from OnInitDialog
        INT_PTR code;
        Seen seen;
    } cases[] = {
        {"EndDialog in OnInitDialog", [](ScriptedDialog& d) { d.EndDialog(7); }, 7, {L"init"}},
        {"EndDialog from a timer",
         [](ScriptedDialog& d) {
             SetTimer(d.hwnd(), 5, 10, nullptr);
             d.timer = [&d](UINT_PTR id) {
                 KillTimer(d.hwnd(), id);
                 d.EndDialog(42);
             };
         },
         42,
         {L"init", L"timer 5"}},
        {"OK button", [](ScriptedDialog& d) { PostMessageW(d.hwnd(), WM_COMMAND, IDOK, 0); }, IDOK, {L"init", L"ok"}},
        {"Escape",
         [](ScriptedDialog& d) { PostMessageW(d.hwnd(), WM_KEYDOWN, VK_ESCAPE, 0); },
         IDCANCEL,
         {L"init", L"cancel"}},
    };
    HWND owner = CreateWindowExW(0, L"STATIC", L"owner", WS_POPUP, 0, 0, 100, 100, nullptr, nullptr,
                                 GetModuleHandleW(nullptr), nullptr);
    for (const auto& c : cases) {
        SCOPED_TRACE(c.how);
        ScriptedDialog dialog(IDD_FRAMEWORK_FIELDS);
        std::optional<bool> ownerEnabledWhileOpen;
        HWND ownerSeen = nullptr;
        dialog.init = [&] {
            ownerSeen = GetWindow(dialog.hwnd(), GW_OWNER);
            PostMessageW(dialog.hwnd(), kStart, 0, 0);
            c.act(dialog);
        };
        dialog.message = [&](UINT msg, WPARAM, LPARAM) -> std::optional<LRESULT> {
            if (msg != kStart) return std::nullopt;
            ownerEnabledWhileOpen = IsWindowEnabled(owner) != FALSE;
            return 0;
        };
        EXPECT_EQ(c.code, dialog.DoModal(owner));
        EXPECT_EQ(c.seen, dialog.seen);
        EXPECT_EQ(owner, ownerSeen);
        if (c.code != 7) {
            EXPECT_EQ(false, ownerEnabledWhileOpen) << "the owner is disabled while the dialog runs";
        }
        EXPECT_TRUE(IsWindowEnabled(owner));
        EXPECT_EQ(nullptr, dialog.hwnd()) << "the window is gone when DoModal returns";
    }
    DestroyWindow(owner);
}

TEST_F(DialogTest, WithoutItsTemplateNoWindowIsMade) {
    ScriptedDialog dialog(IDD_FRAMEWORK_MISSING);
    EXPECT_EQ(-1, dialog.DoModal(nullptr));
    EXPECT_FALSE(dialog.Create(nullptr));
    EXPECT_EQ(nullptr, dialog.hwnd());
    EXPECT_TRUE(dialog.seen.empty());
}

TEST_F(DialogTest, HandlersAnswerTheSenderAndTheirExceptionsStayInside) {
    ScriptedDialog dialog(IDD_FRAMEWORK_FIELDS);
    dialog.message = [](UINT msg, WPARAM wParam, LPARAM) -> std::optional<LRESULT> {
        if (msg == WM_APP + 5) return static_cast<LRESULT>(wParam * 2);
        if (msg == WM_APP + 6) throw std::runtime_error("disk on fire");
        return std::nullopt;
    };
    dialog.notify = [](const NMHDR& header) -> std::optional<LRESULT> {
        if (header.code == 77) return 1234;
        return std::nullopt;
    };
    dialog.command = [](int id, int code) { return (id == IDC_FW_INT && code == EN_KILLFOCUS) || id == IDOK; };
    ASSERT_TRUE(dialog.Create(nullptr));
    HWND window = dialog.hwnd();
    EXPECT_EQ(&dialog, ui::Dialog::FromHandle(window));
    EXPECT_EQ(nullptr, ui::Dialog::FromHandle(dialog.Item(IDC_FW_INT)));

    EXPECT_EQ(42, SendMessageW(window, WM_APP + 5, 21, 0));
    NMHDR header{dialog.Item(IDC_FW_LIST), IDC_FW_LIST, 77};
    EXPECT_EQ(1234, SendMessageW(window, WM_NOTIFY, IDC_FW_LIST, reinterpret_cast<LPARAM>(&header)));
    header.code = 78;
    EXPECT_EQ(0, SendMessageW(window, WM_NOTIFY, IDC_FW_LIST, reinterpret_cast<LPARAM>(&header)));
    SendMessageW(window, WM_COMMAND, MAKEWPARAM(IDC_FW_INT, EN_KILLFOCUS),
                 reinterpret_cast<LPARAM>(dialog.Item(IDC_FW_INT)));
    SendMessageW(window, WM_COMMAND, IDOK, 0);
    EXPECT_EQ((Seen{L"init", L"command 2006 512", L"command 1 0"}), dialog.seen) << "OK taken over: no OnOK";

    SendMessageW(window, WM_APP + 6, 0, 0);
    ASSERT_EQ(1u, shown().size());
    EXPECT_EQ(L"An unexpected error stopped this action.\ndisk on fire", shown()[0].text);
    EXPECT_TRUE(IsWindow(window)) << "the dialog goes on";

    dialog.DestroyWindow();
    EXPECT_FALSE(IsWindow(window));
    EXPECT_EQ(nullptr, dialog.hwnd());
}

}  // namespace
