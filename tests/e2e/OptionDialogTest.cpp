// The option dialog as the user and the host meet it: a window of the running Option.exe.
#include <gtest/gtest.h>

#include <windows.h>

#include <commctrl.h>

#include <string>

#include "support/FakeHostProcess.h"
#include "support/Files.h"
#include "support/HostHandshake.h"
#include "support/OptionWindow.h"
#include "support/Process.h"
#include "support/Registry.h"

namespace {

constexpr wchar_t kOptionPage[] = L"Software\\Tarnwick\\QOR\\Command\\Option\\OptionPage";
constexpr int kTreeId = 1621;
// Every row of the tree: the pages and groups the user can reach.
constexpr LRESULT kTreeItems = 51;

// Closes the dialog as its Cancel button would and gives the exit code.
DWORD Cancel(e2e::Process& option, HWND dialog) {
    PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED), 0);
    return option.WaitOrKill();
}

TEST(OptionDialog, AppearsWithItsTreeAndItsButtons) {
    e2e::registry::ScopedKey key(kOptionPage);
    e2e::registry::DeleteKey(kOptionPage);
    e2e::Process option = e2e::StartOption();
    ASSERT_TRUE(option);
    HWND dialog = e2e::FindOptionDialog(option.Id());
    ASSERT_NE(nullptr, dialog);

    HWND tree = GetDlgItem(dialog, kTreeId);
    ASSERT_NE(nullptr, tree);
    EXPECT_TRUE(IsWindowVisible(tree));
    EXPECT_EQ(kTreeItems, SendMessageW(tree, TVM_GETCOUNT, 0, 0));
    EXPECT_NE(nullptr, reinterpret_cast<HTREEITEM>(SendMessageW(tree, TVM_GETNEXTITEM, TVGN_CARET, 0)));
    for (int button : {IDOK, IDCANCEL, 1301}) {
        SCOPED_TRACE(button);
        EXPECT_TRUE(IsWindowVisible(GetDlgItem(dialog, button)));
    }
    EXPECT_EQ(1, SendMessageW(dialog, 0x8030, 0, 0)) << "the host's probe is answered";
    EXPECT_EQ(0u, Cancel(option, dialog));
}

TEST(OptionDialog, CancelServesTheFolderRequestAndKeepsStart) {
    e2e::registry::ScopedKey key(kOptionPage);
    e2e::registry::WriteDword(kOptionPage, L"Start", 36);
    e2e::registry::WriteString(kOptionPage, L"SetFolder", L"C:\\Work");
    e2e::Process option = e2e::StartOption();
    ASSERT_TRUE(option);
    HWND dialog = e2e::FindOptionDialog(option.Id());
    ASSERT_NE(nullptr, dialog);
    EXPECT_EQ(L"", e2e::registry::ReadString(kOptionPage, L"SetFolder").value_or(L"<absent>"));

    EXPECT_EQ(0u, Cancel(option, dialog));
    EXPECT_EQ(L"", e2e::registry::ReadString(kOptionPage, L"SetFolder").value_or(L"<absent>"));
    EXPECT_EQ(36u, e2e::registry::ReadDword(kOptionPage, L"Start").value_or(0));
}

// In window mode 3 the host's window owns the dialog, so the dialog stays above it.
TEST(OptionDialog, InModeThreeTheHostOwnsIt) {
    e2e::FakeHost host;
    ASSERT_TRUE(host.Window());
    e2e::Process option = e2e::StartOption({}, {e2e::HostSwitch(e2e::SwitchString(3, 0, 0, 0, 0, L"none"))});
    ASSERT_TRUE(option);
    HWND dialog = e2e::FindOptionDialog(option.Id());
    ASSERT_NE(nullptr, dialog);
    EXPECT_EQ(host.Window(), GetWindow(dialog, GW_OWNER));
    EXPECT_EQ(0u, Cancel(option, dialog));
}

}  // namespace

namespace {

// Selects the tree item of an id: the dialog shows it as the user would have chosen it.
void SelectItem(HWND dialog, int index) {
    HWND tree = GetDlgItem(dialog, kTreeId);
    HTREEITEM item = reinterpret_cast<HTREEITEM>(SendMessageW(tree, TVM_GETNEXTITEM, TVGN_ROOT, 0));
    for (int i = 0; i < index && item; ++i) {
        item =
            reinterpret_cast<HTREEITEM>(SendMessageW(tree, TVM_GETNEXTITEM, TVGN_NEXT, reinterpret_cast<LPARAM>(item)));
    }
    ASSERT_NE(nullptr, item);
    SendMessageW(tree, TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(item));
}

// Apply with nothing that records a code: every host hears the empty series, and the selected
// item becomes Start; a second Apply says it all again; OK closes after its own Apply.
TEST(OptionDialog, ApplyTellsEveryHostAndStoresStart) {
    e2e::registry::ScopedKey key(kOptionPage);
    e2e::registry::WriteDword(kOptionPage, L"Start", 1000);
    e2e::FakeHost first;
    e2e::FakeHost second({.title = L"Qor 2"});
    ASSERT_TRUE(first.Window());
    ASSERT_TRUE(second.Window());
    e2e::Process option = e2e::StartOption();
    ASSERT_TRUE(option);
    HWND dialog = e2e::FindOptionDialog(option.Id());
    ASSERT_NE(nullptr, dialog);

    SelectItem(dialog, 3);  // the fourth root, "インターフェイス"
    SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(1301, BN_CLICKED), 0);
    EXPECT_EQ(1003u, e2e::registry::ReadDword(kOptionPage, L"Start").value_or(0));
    SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(1301, BN_CLICKED), 0);
    PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), 0);
    EXPECT_EQ(0u, option.WaitOrKill());

    const std::vector<unsigned> series = {48999, 49099, 48999, 49099, 48999, 49099};
    EXPECT_EQ(series, first.Commands());
    EXPECT_EQ(series, second.Commands());
}

}  // namespace

namespace {

constexpr wchar_t kSettings[] = L"Software\\Tarnwick\\Qor\\Main001\\Settings";

// With LangOut on, the first opening writes the dialog's text file for translators; a translated
// file is what the next opening shows.
TEST(OptionDialog, WritesItsTextFileAndReadsATranslation) {
    e2e::registry::ScopedKey settings(kSettings);
    e2e::registry::WriteString(kSettings, L"NLS", L".ja-JP");
    e2e::registry::WriteDword(kSettings, L"LangOut", 1);
    const std::wstring folder = e2e::StageRoot() + L"\\command\\Option\\.ja-JP\\Option";
    const std::wstring file = folder + L"\\159.txt";
    DeleteFileW(file.c_str());

    e2e::Process first = e2e::StartOption();
    ASSERT_TRUE(first);
    HWND dialog = e2e::FindOptionDialog(first.Id());
    ASSERT_NE(nullptr, dialog);
    EXPECT_EQ(0u, Cancel(first, dialog));
    std::wstring text = e2e::ReadUtf16File(file);
    ASSERT_TRUE(text.starts_with(L"\uFEFFオプション\r\n")) << "no dialog text file written";
    EXPECT_NE(std::wstring::npos, text.find(L"1301\tButton\t適用\r\n"));

    ASSERT_TRUE(e2e::WriteUtf16File(file, L"\uFEFFOptions\r\n1301\tButton\tApply\r\n"));
    e2e::Process second = e2e::StartOption();
    ASSERT_TRUE(second);
    HWND translated = e2e::FindVisibleWindow(second.Id(), L"Options");
    ASSERT_NE(nullptr, translated);
    wchar_t apply[32] = {};
    GetWindowTextW(GetDlgItem(translated, 1301), apply, 32);
    EXPECT_EQ(std::wstring(L"Apply"), apply);
    EXPECT_EQ(0u, Cancel(second, translated));
    DeleteFileW(file.c_str());
}

}  // namespace

namespace {

constexpr wchar_t kAppInfo[] = L"Software\\Tarnwick\\QOR\\Main001\\AppInfo";

bool Checked(HWND list, int row) {
    return (SendMessageW(list, LVM_GETITEMSTATE, row, LVIS_STATEIMAGEMASK) >> 12) == 2;
}

// The confirmation page: its rows follow the stored bits, a preset changes the checks, and Apply
// stores them (higher bits kept) and tells the host to reread them.
TEST(OptionDialog, ConfirmationPageStoresItsBitsAndTellsTheHost) {
    e2e::registry::ScopedKey page(kOptionPage);
    e2e::registry::ScopedKey appInfo(kAppInfo);
    e2e::registry::WriteDword(kOptionPage, L"Start", 39);
    e2e::registry::WriteDword(kAppInfo, L"Message", 0x12340005);
    e2e::FakeHost host;
    ASSERT_TRUE(host.Window());
    e2e::Process option = e2e::StartOption();
    ASSERT_TRUE(option);
    HWND dialog = e2e::FindOptionDialog(option.Id());
    ASSERT_NE(nullptr, dialog);
    HWND confirmations = e2e::PageWith(dialog, 1601);
    ASSERT_NE(nullptr, confirmations);
    HWND list = GetDlgItem(confirmations, 1601);
    ASSERT_EQ(15, SendMessageW(list, LVM_GETITEMCOUNT, 0, 0));
    for (int row = 0; row < 15; ++row) EXPECT_EQ(row == 0 || row == 2, Checked(list, row)) << row;

    SendMessageW(confirmations, WM_COMMAND, MAKEWPARAM(1303, BN_CLICKED), 0);
    SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(1301, BN_CLICKED), 0);
    EXPECT_EQ(0x12344704u, e2e::registry::ReadDword(kAppInfo, L"Message").value_or(0));
    EXPECT_EQ((std::vector<unsigned>{48999, 49036, 49099}), host.Commands());
    EXPECT_EQ(0u, Cancel(option, dialog));
}

}  // namespace

namespace {

// The title bar form is taken by the host at its next start: stored, but the host hears only the
// brackets of the series.
TEST(OptionDialog, TitleBarFormIsStoredAndOnlyTheBracketsAreSent) {
    e2e::registry::ScopedKey page(kOptionPage);
    e2e::registry::ScopedKey appInfo(kAppInfo);
    e2e::registry::WriteDword(kOptionPage, L"Start", 37);
    e2e::registry::WriteDword(kAppInfo, L"TitleBarType", 0);
    e2e::FakeHost host;
    ASSERT_TRUE(host.Window());
    e2e::Process option = e2e::StartOption();
    ASSERT_TRUE(option);
    HWND dialog = e2e::FindOptionDialog(option.Id());
    ASSERT_NE(nullptr, dialog);
    HWND style = e2e::PageWith(dialog, 1203);
    ASSERT_NE(nullptr, style);
    EXPECT_EQ(BST_CHECKED, SendMessageW(GetDlgItem(style, 1201), BM_GETCHECK, 0, 0));

    SendMessageW(GetDlgItem(style, 1201), BM_SETCHECK, BST_UNCHECKED, 0);
    SendMessageW(GetDlgItem(style, 1203), BM_SETCHECK, BST_CHECKED, 0);
    PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), 0);
    EXPECT_EQ(0u, option.WaitOrKill());
    EXPECT_EQ(2u, e2e::registry::ReadDword(kAppInfo, L"TitleBarType").value_or(0));
    EXPECT_EQ((std::vector<unsigned>{48999, 49099}), host.Commands());
}

}  // namespace
