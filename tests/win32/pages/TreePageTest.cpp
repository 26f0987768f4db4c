#include <gtest/gtest.h>

#include <windows.h>

#include <algorithm>
#include <string>
#include <vector>

#include "app/COptionDlg.h"
#include "platform/win32/Win32ShellNamespace.h"
#include "ui/ListView.h"
#include "win32/support/OptionDialogFixture.h"

namespace {

using namespace optiontest;

constexpr const wchar_t* kTreeInfo = L"Software\\Tarnwick\\QOR\\Main001\\TreeInfo";
constexpr const wchar_t* kDesktop = L"B4BFCC3A-DB2C-424C-B029-7FE99A87C641";
constexpr int kPage = 10;

class TreePageTest : public OptionDialogFixture {
protected:
    HWND Open(COptionDlg& dialog) {
        SetStart(kPage);
        if (!dialog.Create(nullptr)) return nullptr;
        return dialog.Page(kPage) && dialog.Page(kPage)->opened ? dialog.Page(kPage)->hwnd() : nullptr;
    }
};

// A missing folder typed is told and the dialog stays; one browsed for goes before the selected root, a
// known folder by its identifier. The list ends with an empty value.
TEST_F(TreePageTest, RootsAddedByBrowsingAndByNameAreStoredInOrder) {
    DirectWriteString(kTreeInfo, L"TopNode0", L"::{B4BFCC3A-DB2C-424C-B029-7FE99A87C641}");
    fake_.files().AddDirectory(L"C:\\Data");
    fake_.shell().addressNames[L"C:\\Data"] = L"Data";
    fake_.prompts().ChooseFolder({true, L"C:\\Data"});
    COptionDlg dialog(app_);
    HWND page = Open(dialog);
    ASSERT_NE(nullptr, page);
    const ui::ListView roots(GetDlgItem(page, 1603));
    ASSERT_EQ(1, roots.GetItemCount());
    EXPECT_EQ(L"Desktop", roots.GetItemText(0, 0));
    roots.SelectRow(0);
    WhenShown(L"パスの登録", [this](HWND chooser) {
        EXPECT_FALSE(IsWindowEnabled(GetDlgItem(chooser, 1151)));
        SetDlgItemTextW(chooser, 1051, L"C:\\Missing");
        Click(chooser, IDOK);
        EXPECT_EQ(L"Not found C:\\Missing", fake_.prompts().shown().back().text);
        SendDlgItemMessageW(chooser, 1051, WM_KEYDOWN, VK_F4, 0);
        Click(chooser, IDOK);
    });
    Click(page, 1301);
    ASSERT_EQ(2, roots.GetItemCount());
    EXPECT_EQ(L"Data", roots.GetItemText(0, 0));
    roots.SelectRow(-1);
    WhenShown(L"パスの登録", [](HWND chooser) {
        Click(chooser, 1202);
        HWND known = GetDlgItem(chooser, 1151);
        EXPECT_TRUE(IsWindowEnabled(known));
        const LRESULT personal =
            SendMessageW(known, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(L"Personal"));
        SendMessageW(known, CB_SETCURSEL, static_cast<WPARAM>(personal), 0);
        Click(chooser, IDOK);
    });
    Click(page, 1301);
    SendMessageW(dialog.hwnd(), WM_COMMAND, MAKEWPARAM(1301, BN_CLICKED), 0);
    std::vector<std::wstring> stored;
    for (int n = 0; n < 4; ++n) stored.push_back(DirectReadString(kTreeInfo, L"TopNode" + std::to_wstring(n), L"-"));
    EXPECT_EQ((std::vector<std::wstring>{L"C:\\Data", kDesktop, L"FDD39AD0-238F-46AF-ADB4-6C85480369C7", L""}), stored);
}

// Thirty roots, known and real alike, fill the list: one more is refused before the dialog opens.
TEST_F(TreePageTest, AFullListRefusesAnotherRoot) {
    fake_.shell().addressNames[L"C:\\Data"] = L"Data";
    for (int n = 0; n < 30; ++n)
        DirectWriteString(kTreeInfo, L"TopNode" + std::to_wstring(n), n % 2 ? L"C:\\Data" : kDesktop);
    COptionDlg dialog(app_);
    HWND page = Open(dialog);
    ASSERT_NE(nullptr, page);
    Click(page, 1301);
    ASSERT_FALSE(fake_.prompts().shown().empty());
    const std::wstring told = fake_.prompts().shown().back().text;
    EXPECT_EQ(app_.messages.Get(62316), told);
}

// Every folder listed is named alike when asked for alone, by its identifier in either case.
TEST(KnownFolders, TheSystemCatalogueHasTheDesktop) {
    CoInitialize(nullptr);
    platform::win32::Win32ShellNamespace shell;
    const std::vector<platform::KnownFolder> folders = shell.KnownFolders();
    const auto desktop = std::find_if(folders.begin(), folders.end(), [](const platform::KnownFolder& folder) {
        return folder.id == kDesktop || folder.id == L"b4bfcc3a-db2c-424c-b029-7fe99a87c641";
    });
    ASSERT_NE(folders.end(), desktop);
    EXPECT_EQ(L"Desktop", desktop->name);
    EXPECT_GT(folders.size(), 20u);
    for (const platform::KnownFolder& folder : folders)
        EXPECT_EQ(folder.name, shell.KnownFolderName(folder.id).value_or(L"-")) << testing::PrintToString(folder.id);
    EXPECT_EQ(L"Desktop", shell.KnownFolderName(L"b4bfcc3a-db2c-424c-b029-7fe99a87c641"));
    EXPECT_EQ(std::nullopt, shell.KnownFolderName(L"00000000-0000-0000-0000-000000000000"));
    EXPECT_EQ(std::nullopt, shell.KnownFolderName(L"C:\\windows"));
    EXPECT_NE(L"", shell.AddressBarName(L"C:\\windows").value_or(L""));
    EXPECT_EQ(std::nullopt, shell.AddressBarName(L"C:\\no such folder here"));
    CoUninitialize();
}

}  // namespace
