#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <windows.h>

#include <commctrl.h>

#include <string>
#include <vector>

#include "support/FakeHostProcess.h"
#include "support/Files.h"
#include "support/HostHandshake.h"
#include "support/OptionTree.h"
#include "support/OptionWindow.h"
#include "support/Process.h"
#include "support/Registry.h"

namespace {

namespace reg = e2e::registry;

constexpr wchar_t kTitle[] = L"オプション";
constexpr int kApply = 1301;
// Every row of the tree: the pages and groups the user can reach.
constexpr LRESULT kTreeItems = 51;
// What each Apply tells the hosts: the series starts and ends with these.
constexpr unsigned kSeriesStart = 48999;
constexpr unsigned kSeriesEnd = 49099;

// The framework's message box over the dialog: its text, closed with OK. Empty when none came.
std::wstring TakeMessageBox(const e2e::Process& option) {
    HWND box = e2e::FindMessageBox(option.Id(), 5000);
    std::wstring text = box ? e2e::DialogText(box) : L"";
    if (box) e2e::Answer(box, IDOK);
    return text;
}

// Window mode 3: owned by the host's window. With LangOut on it writes its text file for translators, and
// a translated file is what the next opening shows.
TEST(OptionDialog, OpensOverTheHostInItsOwnOrTranslatedWordsAndOnlyAValidPassStores) {
    reg::ScopedKey page(reg::kOptionPage);
    reg::ScopedKey appInfo(reg::kAppInfo);
    reg::ScopedKey settings(reg::kSettings);
    reg::WriteDword(reg::kOptionPage, L"Start", 30);
    reg::WriteString(reg::kOptionPage, L"SetFolder", L"C:\\Work");
    reg::WriteString(reg::kSettings, L"NLS", L".ja-JP");
    reg::WriteDword(reg::kSettings, L"LangOut", 1);
    const std::wstring exports = e2e::StageRoot() + L"\\command\\Option\\.ja-JP\\Option";
    const e2e::ScopedNewFiles pageExports(exports);
    const e2e::ScopedFile translation(exports + L"\\159.txt");
    e2e::FakeHost host;
    ASSERT_TRUE(host.Window());

    e2e::Process first = e2e::StartOption({}, {e2e::HostSwitch(e2e::SwitchString(3, 0, 0, 0, 0, L"none"))});
    ASSERT_TRUE(first);
    HWND dialog = e2e::FindVisibleWindow(first.Id(), kTitle);
    ASSERT_NE(nullptr, dialog);
    EXPECT_EQ(host.Window(), GetWindow(dialog, GW_OWNER));
    HWND tree = GetDlgItem(dialog, e2e::kOptionTreeId);
    EXPECT_TRUE(IsWindowVisible(tree));
    EXPECT_EQ(kTreeItems, SendMessageW(tree, TVM_GETCOUNT, 0, 0));
    EXPECT_NE(nullptr, e2e::NextTreeItem(tree, nullptr, TVGN_CARET));
    for (int button : {IDOK, IDCANCEL, kApply}) {
        SCOPED_TRACE(button);
        EXPECT_TRUE(IsWindowVisible(GetDlgItem(dialog, button)));
    }
    EXPECT_EQ(1, SendMessageW(dialog, 0x8030, 0, 0)) << "the host's probe is answered";
    EXPECT_EQ(L"", reg::ReadString(reg::kOptionPage, L"SetFolder").value_or(L"<absent>"));
    EXPECT_EQ(0u, first.CloseDialog(dialog));
    EXPECT_EQ(L"", reg::ReadString(reg::kOptionPage, L"SetFolder").value_or(L"<absent>"));
    EXPECT_EQ(30u, reg::ReadDword(reg::kOptionPage, L"Start").value_or(0));
    EXPECT_THAT(host.Commands(), testing::IsEmpty());
    std::wstring text = e2e::ReadUtf16File(translation.Path());
    ASSERT_TRUE(text.starts_with(L"\uFEFFオプション\r\n")) << "no dialog text file written";
    EXPECT_NE(std::wstring::npos, text.find(L"1301\tButton\t適用\r\n"));

    // A value out of range: the framework says so, yet OK closes the dialog, stores and tells nothing.
    reg::DeleteKey(reg::kOptionPage);
    reg::WriteDword(reg::kAppInfo, L"UsePing", 0);
    reg::WriteDword(reg::kAppInfo, L"NetworkTimeout", 500);
    ASSERT_TRUE(e2e::WriteUtf16File(translation.Path(), L"\uFEFFOptions\r\n1301\tButton\tApply\r\n"));
    e2e::Process second = e2e::StartOption();
    ASSERT_TRUE(second);
    HWND translated = e2e::FindVisibleWindow(second.Id(), L"Options");
    ASSERT_NE(nullptr, translated);
    EXPECT_EQ(L"Apply", e2e::Text(GetDlgItem(translated, kApply)));
    ASSERT_TRUE(e2e::SelectTreeItem(translated, 30));
    HWND network = e2e::PageWith(translated, 1001);
    ASSERT_NE(nullptr, network);
    e2e::SetCheck(network, 1251, true);
    e2e::Click(network, 1251);
    SetWindowTextW(GetDlgItem(network, 1001), L"5");
    PostMessageW(translated, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), 0);
    EXPECT_NE(std::wstring::npos, TakeMessageBox(second).find(L"5000000"));
    EXPECT_EQ(0u, second.WaitOrKill());
    EXPECT_FALSE(reg::ReadDword(reg::kOptionPage, L"Start"));
    EXPECT_EQ(0u, reg::ReadDword(reg::kAppInfo, L"UsePing").value_or(99));
    EXPECT_EQ(500u, reg::ReadDword(reg::kAppInfo, L"NetworkTimeout").value_or(0));
    EXPECT_THAT(host.Commands(), testing::IsEmpty());
}

// The selected item is stored as the page to open next time; each Apply tells every host it all again,
// and OK closes after an Apply of its own.
TEST(OptionDialog, ApplyStoresEveryPageAndEveryHostHearsWhatToReread) {
    reg::ScopedKey page(reg::kOptionPage);
    reg::ScopedKey appInfo(reg::kAppInfo);
    reg::ScopedKey settings(reg::kSettings);
    reg::WriteDword(reg::kOptionPage, L"Start", 37);
    reg::WriteDword(reg::kAppInfo, L"TitleBarType", 0);
    reg::WriteDword(reg::kAppInfo, L"Message", 0x12340005);
    e2e::FakeHost first;
    e2e::FakeHost second({.title = L"Qor 2"});
    ASSERT_TRUE(first.Window());
    ASSERT_TRUE(second.Window());
    e2e::Process option = e2e::StartOption();
    ASSERT_TRUE(option);
    HWND dialog = e2e::FindVisibleWindow(option.Id(), kTitle);
    ASSERT_NE(nullptr, dialog);
    std::vector<unsigned> heard;
    auto expectHeard = [&](std::vector<unsigned> series) {
        heard.insert(heard.end(), series.begin(), series.end());
        EXPECT_EQ(heard, first.Commands());
        EXPECT_EQ(heard, second.Commands());
    };

    // The title bar form: the host takes it at its next start, so it hears only the brackets.
    HWND style = e2e::PageWith(dialog, 1203);
    ASSERT_NE(nullptr, style);
    EXPECT_EQ(BST_CHECKED, SendMessageW(GetDlgItem(style, 1201), BM_GETCHECK, 0, 0));
    e2e::SetCheck(style, 1201, false);
    e2e::SetCheck(style, 1203, true);
    e2e::Click(dialog, kApply);
    EXPECT_EQ(2u, reg::ReadDword(reg::kAppInfo, L"TitleBarType").value_or(0));
    expectHeard({kSeriesStart, kSeriesEnd});

    // The confirmation page: a preset changes the checks, and the higher bits are kept.
    ASSERT_TRUE(e2e::SelectTreeItem(dialog, 39));
    HWND confirmations = e2e::PageWith(dialog, 1601);
    ASSERT_NE(nullptr, confirmations);
    HWND list = GetDlgItem(confirmations, 1601);
    ASSERT_EQ(15, SendMessageW(list, LVM_GETITEMCOUNT, 0, 0));
    for (int row = 0; row < 15; ++row) {
        const bool checked = (SendMessageW(list, LVM_GETITEMSTATE, row, LVIS_STATEIMAGEMASK) >> 12) == 2;
        EXPECT_EQ(row == 0 || row == 2, checked) << row;
    }
    e2e::Click(confirmations, 1303);
    e2e::Click(dialog, kApply);
    EXPECT_EQ(0x12344704u, reg::ReadDword(reg::kAppInfo, L"Message").value_or(0));
    expectHeard({kSeriesStart, 49036, kSeriesEnd});

    // A group item selected, OK: its own Apply says it all again.
    ASSERT_TRUE(e2e::SelectTreeItem(dialog, 1003));
    EXPECT_EQ(0u, option.CloseDialog(dialog, IDOK));
    EXPECT_EQ(1003u, reg::ReadDword(reg::kOptionPage, L"Start").value_or(0));
    expectHeard({kSeriesStart, 49036, kSeriesEnd});
}

}  // namespace
