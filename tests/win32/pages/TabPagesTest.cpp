// The tab click table over its real template and the fake registry: the chooser and the disabled restore checks.
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
constexpr int kPage = 31;

using TabPagesTest = OptionDialogFixture;

// With the tabs not restored, the restore checks are disabled but still saved as they stand.
TEST_F(TabPagesTest, TheChooserChangesAGestureAndDisabledChecksAreStillSaved) {
    DirectWriteInt(kTabStyle, L"LastTab", 0);
    DirectWriteInt(kTabStyle, L"LastTabVir", 0);
    COptionDlg dialog(app_);
    HWND page = Open(dialog, kPage);
    ASSERT_NE(nullptr, page);
    EXPECT_FALSE(IsWindowEnabled(GetDlgItem(page, 1261)));
    Click(page, 1304);
    ASSERT_FALSE(fake_.prompts().shown().empty());
    const std::wstring told = fake_.prompts().shown().back().text;
    EXPECT_EQ(app_.messages.Get(62301), told);
    const ui::ListView list(GetDlgItem(page, 1602));
    list.SelectRow(11);
    WhenShown(L"操作の選択", [](HWND chooser) {
        EXPECT_EQ(L"中クリック+Ctrl+Shift", TextOf(GetDlgItem(chooser, 1401)));
        EXPECT_EQ(16, ui::ComboBox(GetDlgItem(chooser, 1151)).GetCount());
        ui::ComboBox(GetDlgItem(chooser, 1151)).SetCurSel(7);
        Click(chooser, IDOK);
    });
    Click(page, 1304);
    EXPECT_EQ(L"新しく開く", list.GetItemText(11, 1));
    Apply(dialog);
    EXPECT_EQ((std::vector<int32_t>{57600, 1, 0}), (std::vector<int32_t>{DirectReadInt(kTabStyle, L"TabBarClkMSC", -1),
                                                                         DirectReadInt(kTabStyle, L"LastTabNet", -1),
                                                                         DirectReadInt(kTabStyle, L"LastTabVir", -1)}));
}

}  // namespace
