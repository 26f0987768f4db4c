// The tab click table over its real template and the fake registry: what each gesture shows, the
// chooser, a command the page does not offer, the restore checks and a translation that breaks the
// command labels.
#include <gtest/gtest.h>

#include <windows.h>

#include <string>
#include <vector>

#include "app/COptionDlg.h"
#include "ui/ComboBox.h"
#include "ui/ListView.h"
#include "unit/Utf16.h"
#include "win32/support/OptionDialogFixture.h"

namespace {

using namespace optiontest;

constexpr const wchar_t* kTabStyle = L"Software\\Tarnwick\\QOR\\Main001\\TabStyle";
constexpr int kApply = 1301;
constexpr int kPage = 31;
constexpr int kClicks = 1602;
constexpr int kChange = 1304;

class TabPagesTest : public OptionDialogFixture {
protected:
    HWND Open(COptionDlg& dialog) {
        SetStart(kPage);
        if (!dialog.Create(nullptr)) return nullptr;
        return dialog.Page(kPage) && dialog.Page(kPage)->opened ? dialog.Page(kPage)->hwnd() : nullptr;
    }
    std::wstring Cell(HWND page, int row, int column) const {
        return ui::ListView(GetDlgItem(page, kClicks)).GetItemText(row, column);
    }
    std::vector<bool> Enabled(HWND page) const {
        std::vector<bool> enabled;
        for (int id : {1260, 1261, 1262}) enabled.push_back(IsWindowEnabled(GetDlgItem(page, id)) != FALSE);
        return enabled;
    }
    void Apply(COptionDlg& dialog) const { SendMessageW(dialog.hwnd(), WM_COMMAND, MAKEWPARAM(kApply, BN_CLICKED), 0); }
};

TEST_F(TabPagesTest, GesturesShowTheirCommandsAndApplyWritesOnlyOfferedOnes) {
    DirectWriteInt(kTabStyle, L"TabBarClkR", 12345);
    DirectWriteInt(kTabStyle, L"TabBarClkDSC", 36200);
    DirectWriteInt(kTabStyle, L"LastTab", 0);
    DirectWriteInt(kTabStyle, L"LastTabVir", 0);
    COptionDlg dialog(app_);
    HWND page = Open(dialog);
    ASSERT_NE(nullptr, page);
    const ui::ListView list(GetDlgItem(page, kClicks));
    ASSERT_EQ(12, list.GetItemCount());
    EXPECT_EQ(L"ダブルクリック+Ctrl+Shift", Cell(page, 3, 0));
    EXPECT_EQ(L"上位階層へ移動", Cell(page, 3, 1));
    EXPECT_EQ(L"右クリック(組み合わせなし)", Cell(page, 4, 0));
    EXPECT_EQ(L"現在のウィンドウを閉じる", Cell(page, 4, 1));
    EXPECT_EQ(L"ナビゲートロック切り替え", Cell(page, 8, 1));
    EXPECT_EQ((std::vector<bool>{false, false, false}), Enabled(page));

    Click(page, kChange);  // nothing selected: told so, and no chooser
    ASSERT_FALSE(fake_.prompts().shown().empty());
    const std::wstring told = fake_.prompts().shown().back().text;
    EXPECT_EQ(app_.messages.Get(62301), told);
    list.SelectRow(11);
    WhenShown(L"操作の選択", [](HWND chooser) {
        EXPECT_EQ(L"中クリック+Ctrl+Shift", TextOf(GetDlgItem(chooser, 1401)));
        EXPECT_EQ(16, ui::ComboBox(GetDlgItem(chooser, 1151)).GetCount());
        ui::ComboBox(GetDlgItem(chooser, 1151)).SetCurSel(7);
        Click(chooser, IDOK);
    });
    Click(page, kChange);
    EXPECT_EQ(L"新しく開く", Cell(page, 11, 1));

    Apply(dialog);
    // The restore checks were disabled, and are saved as they stood.
    EXPECT_EQ((std::vector<int32_t>{35112, 36200, 57600, 35850, 1, 0}),
              (std::vector<int32_t>{
                  DirectReadInt(kTabStyle, L"TabBarClkR", -1), DirectReadInt(kTabStyle, L"TabBarClkDSC", -1),
                  DirectReadInt(kTabStyle, L"TabBarClkMSC", -1), DirectReadInt(kTabStyle, L"TabBarClkM", -1),
                  DirectReadInt(kTabStyle, L"LastTabNet", -1), DirectReadInt(kTabStyle, L"LastTabVir", -1)}));
    EXPECT_EQ(-1, DirectReadInt(kTabStyle, L"TabBarClkDCS", -1));
    Click(page, 1256);
    EXPECT_EQ((std::vector<bool>{true, true, true}), Enabled(page));
}

// The command labels come with the dialog's text; a translation with a wrong count is told, and the
// page stays out of the dialog.
TEST_F(TabPagesTest, ATranslationWithTheWrongNumberOfCommandsKeepsThePageOut) {
    DirectWriteString(kDirectSettingsPath, L"NLS", L".en-US");
    fake_.files().AddFile(L"C:\\Qor\\command\\Option\\.en-US\\Option\\127.txt",
                          Utf16Bytes(L"Tabs\r\n1401\tStatic\tClose/Open\r\n", true));
    COptionDlg dialog(app_);
    EXPECT_EQ(nullptr, Open(dialog));
    ASSERT_EQ(1u, fake_.prompts().shown().size());
    EXPECT_EQ(L"String of 2 is required ID:1401, but it has become 16", fake_.prompts().shown()[0].text);
}

}  // namespace
