// Life of a framework dialog: how a modal one ends, what reaches its handlers and what the sender
// gets back, and a page inside a host dialog that owns Enter and Escape.
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

constexpr UINT kPageOK = 0x800A;
constexpr UINT kPageCancel = 0x800B;
constexpr UINT kStart = WM_APP + 1;  // posted by OnInitDialog: the test's actions begin
// Posted after them: ends with 99 what nothing else ended, after twice going to the back of the queue
// so that what the actions posted in turn comes first.
constexpr UINT kFinish = WM_APP + 2;

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

// A page as the option dialog's pages are: Enter and Escape post to the dialog that holds it, which
// notes what arrived.
struct PageInHost {
    ScriptedDialog host{IDD_FRAMEWORK_HOST};
    ScriptedDialog page{IDD_FRAMEWORK_PAGE};
    Seen hostGot;

    PageInHost() {
        page.ok = [this] { PostMessageW(host.hwnd(), kPageOK, 0, 0); };
        page.cancel = [this] { PostMessageW(host.hwnd(), kPageCancel, 0, 0); };
        page.command = [](int id, int code) { return id == IDC_FW_PAGE_BUTTON && code == BN_CLICKED; };
        host.message = [this](UINT msg, WPARAM wParam, LPARAM) -> std::optional<LRESULT> {
            if (msg == kPageOK) hostGot.push_back(L"page ok");
            if (msg == kPageCancel) hostGot.push_back(L"page cancel");
            if (msg == kFinish)
                wParam < 2 ? (void)PostMessageW(host.hwnd(), kFinish, wParam + 1, 0) : host.EndDialog(99);
            return msg == kPageOK || msg == kPageCancel || msg == kFinish ? std::optional<LRESULT>(1) : std::nullopt;
        };
    }

    // Creates the page as a shown child of the host.
    bool Show() {
        if (!page.Create(host.hwnd())) return false;
        ShowWindow(page.hwnd(), SW_SHOW);
        return true;
    }
};

TEST_F(DialogTest, EnterAndEscapeInAPageGoToThePage) {
    // Keys pressed in turn while the host runs modally, each in a control of the page.
    const struct {
        int control;
        WPARAM key;
    } keys[] = {
        {IDC_FW_PAGE_EDIT, VK_RETURN},    // the page's OnOK
        {IDC_FW_PAGE_EDIT, VK_ESCAPE},    // the page's OnCancel
        {IDC_FW_PAGE_BUTTON, VK_RETURN},  // a click on the focused button
        {IDC_FW_PAGE_NOTES, VK_RETURN},   // a multi-line edit keeps its Enter
    };
    PageInHost dialogs;
    dialogs.host.init = [&] {
        ASSERT_TRUE(dialogs.Show());
        PostMessageW(dialogs.host.hwnd(), kStart, 0, 0);
    };
    auto hostMessage = dialogs.host.message;
    dialogs.host.message = [&](UINT msg, WPARAM wParam, LPARAM lParam) -> std::optional<LRESULT> {
        if (msg != kStart) return hostMessage(msg, wParam, lParam);
        for (const auto& k : keys) {
            HWND control = dialogs.page.Item(k.control);
            SetFocus(control);
            PostMessageW(control, WM_KEYDOWN, k.key, 1);
        }
        PostMessageW(dialogs.host.hwnd(), kFinish, 0, 0);
        return 0;
    };
    EXPECT_EQ(99, dialogs.host.DoModal(nullptr));
    EXPECT_EQ((Seen{L"init", L"ok", L"cancel", L"command 2202 0"}), dialogs.page.seen);
    EXPECT_EQ((Seen{L"page ok", L"page cancel"}), dialogs.hostGot);
    EXPECT_EQ((Seen{L"init"}), dialogs.host.seen) << "the host's own OnOK and OnCancel are not involved";
}

}  // namespace
