// Apply as a user and the host meet it: values typed into real pages reach the registry, and every
// running host hears which groups to reread, or nothing at all when a page refuses.
#include <gtest/gtest.h>

#include <windows.h>

#include <commctrl.h>

#include <string>
#include <vector>

#include "support/FakeHostProcess.h"
#include "support/OptionWindow.h"
#include "support/Process.h"
#include "support/Registry.h"

namespace {

constexpr wchar_t kOptionPage[] = L"Software\\Tarnwick\\QOR\\Command\\Option\\OptionPage";
constexpr wchar_t kAppInfo[] = L"Software\\Tarnwick\\QOR\\Main001\\AppInfo";
constexpr wchar_t kSettings[] = L"Software\\Tarnwick\\QOR\\Main001\\Settings";
constexpr int kApply = 1301;
constexpr int kTreeId = 1621;

void Click(HWND window, int id) {
    SendMessageW(window, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), 0);
}

void SetCheck(HWND page, int id, bool on) {
    SendMessageW(GetDlgItem(page, id), BM_SETCHECK, on ? BST_CHECKED : BST_UNCHECKED, 0);
}

// Asked of the control itself: GetWindowText does not ask another process's controls.
std::wstring Text(HWND window) {
    wchar_t text[256] = {};
    SendMessageW(window, WM_GETTEXT, 256, reinterpret_cast<LPARAM>(text));
    return text;
}

// The option dialog of a running Option.exe opened on one page.
struct OpenDialog {
    explicit OpenDialog(int startPage) {
        e2e::registry::WriteDword(kOptionPage, L"Start", static_cast<DWORD>(startPage));
        option = e2e::StartOption();
        if (option) dialog = e2e::FindOptionDialog(option.Id());
    }

    e2e::Process option;
    HWND dialog = nullptr;
};

// The framework's message box over the dialog: its text, closed with OK. Empty when none came.
std::wstring TakeMessageBox(const e2e::Process& option) {
    HWND box = e2e::FindVisibleWindow(option.Id(), L"Option", 5000);
    if (!box) return L"";
    std::wstring text = Text(GetDlgItem(box, 0xFFFF));
    PostMessageW(box, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), 0);
    for (int i = 0; i < 100 && IsWindow(box); ++i) Sleep(50);
    return text;
}

// The general page: a check and the sort threshold are stored, IME in its own section, and both
// hosts hear the series with the code of the section at every Apply.
TEST(Apply, GeneralPageStoresItsValuesAndEveryHostHearsEachSeries) {
    e2e::registry::ScopedKey page(kOptionPage);
    e2e::registry::ScopedKey appInfo(kAppInfo);
    e2e::registry::ScopedKey settings(kSettings);
    e2e::registry::WriteDword(kAppInfo, L"DragHelper", 1);
    e2e::registry::DeleteValue(kAppInfo, L"ListReserveVal");
    e2e::FakeHost first;
    e2e::FakeHost second({.title = L"Qor 2"});
    ASSERT_TRUE(first.Window());
    ASSERT_TRUE(second.Window());
    OpenDialog open(20);
    ASSERT_NE(nullptr, open.dialog);
    HWND general = e2e::PageWith(open.dialog, 1003);
    ASSERT_NE(nullptr, general);
    EXPECT_EQ(L"10", Text(GetDlgItem(general, 1003)));

    SetCheck(general, 1256, false);
    SetWindowTextW(GetDlgItem(general, 1003), L"25");
    Click(open.dialog, kApply);
    EXPECT_EQ(0u, e2e::registry::ReadDword(kAppInfo, L"DragHelper").value_or(99));
    EXPECT_EQ(25u, e2e::registry::ReadDword(kAppInfo, L"ChgSortAlg").value_or(0));
    EXPECT_EQ(1u, e2e::registry::ReadDword(kSettings, L"IME").value_or(0));
    EXPECT_FALSE(e2e::registry::ReadDword(kAppInfo, L"ListReserveVal")) << "loaded only, never written";
    EXPECT_EQ(20u, e2e::registry::ReadDword(kOptionPage, L"Start").value_or(0));
    Click(open.dialog, kApply);

    const std::vector<unsigned> twice = {48999, 49017, 49099, 48999, 49017, 49099};
    EXPECT_EQ(twice, first.Commands());
    EXPECT_EQ(twice, second.Commands());
    PostMessageW(open.dialog, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED), 0);
    EXPECT_EQ(0u, open.option.WaitOrKill());
}

// A value out of range: the framework says which range, nothing is stored and no host hears
// anything; OK still closes the dialog and leaves Start as it was.
TEST(Apply, OutOfRangeValueRefusesAndOkStillCloses) {
    e2e::registry::ScopedKey page(kOptionPage);
    e2e::registry::ScopedKey appInfo(kAppInfo);
    e2e::registry::WriteDword(kAppInfo, L"UsePing", 0);
    e2e::registry::WriteDword(kAppInfo, L"NetworkTimeout", 500);
    e2e::FakeHost host;
    ASSERT_TRUE(host.Window());
    OpenDialog open(30);
    ASSERT_NE(nullptr, open.dialog);
    HWND network = e2e::PageWith(open.dialog, 1001);
    ASSERT_NE(nullptr, network);
    EXPECT_FALSE(IsWindowEnabled(GetDlgItem(network, 1001))) << "no ping, no time-out";
    SetCheck(network, 1251, true);
    Click(network, 1251);
    EXPECT_TRUE(IsWindowEnabled(GetDlgItem(network, 1001)));
    SetWindowTextW(GetDlgItem(network, 1001), L"5");

    PostMessageW(open.dialog, WM_COMMAND, MAKEWPARAM(kApply, BN_CLICKED), 0);
    EXPECT_EQ(L"Please enter an integer between 10 and 5000000.", TakeMessageBox(open.option));
    SendMessageW(open.dialog, WM_NULL, 0, 0);
    EXPECT_EQ(0u, e2e::registry::ReadDword(kAppInfo, L"UsePing").value_or(99));
    EXPECT_TRUE(host.Commands().empty());

    // The root of the tree is selected now; a full pass would make it Start.
    HWND tree = GetDlgItem(open.dialog, kTreeId);
    SendMessageW(tree, TVM_SELECTITEM, TVGN_CARET, SendMessageW(tree, TVM_GETNEXTITEM, TVGN_ROOT, 0));
    PostMessageW(open.dialog, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), 0);
    EXPECT_EQ(L"Please enter an integer between 10 and 5000000.", TakeMessageBox(open.option));
    EXPECT_EQ(0u, open.option.WaitOrKill());
    EXPECT_EQ(30u, e2e::registry::ReadDword(kOptionPage, L"Start").value_or(0));
    EXPECT_EQ(500u, e2e::registry::ReadDword(kAppInfo, L"NetworkTimeout").value_or(0));
    EXPECT_TRUE(host.Commands().empty());
}

}  // namespace
