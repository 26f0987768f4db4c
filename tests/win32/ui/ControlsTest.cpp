// The wrappers where a message's details are easy to get wrong; the others are worked through the pages.
#include <gtest/gtest.h>
#include <windows.h>

#include "ui/ControlText.h"
#include "ui/ListView.h"
#include "win32/resources/FrameworkTestRes.h"
#include "win32/ui/ScriptedDialog.h"

namespace {

using testing_support::FrameworkTest;
using testing_support::ScriptedDialog;
using Parts = std::vector<std::wstring>;

class ControlsTest : public FrameworkTest {
protected:
    void SetUp() override {
        FrameworkTest::SetUp();
        ASSERT_TRUE(dialog_.Create(nullptr));
    }

    ScriptedDialog dialog_{IDD_FRAMEWORK_FIELDS};
};

TEST_F(ControlsTest, ListViewRowsKeepTheirChecksDataAndLongTexts) {
    ui::ListView list(dialog_.Item(IDC_FW_LIST));
    list.SetExtendedStyle(LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT, LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT);
    EXPECT_EQ(0, list.InsertColumn(0, L"Event", 300));
    EXPECT_EQ(1, list.InsertColumn(1, L"Message", 800));
    EXPECT_EQ(2, list.GetColumnCount());
    const std::wstring longText(1000, L'm');
    for (int row = 0; row < 4; ++row) {
        ASSERT_EQ(row, list.InsertItem(row, L"event " + std::to_wstring(row), 63301 + 2 * row));
        list.SetItemText(row, 1, longText + std::to_wstring(row));
    }
    list.SetCheck(1, true);
    list.SetCheck(3, true);
    list.SetCheck(3, false);
    for (int row = 0; row < 4; ++row) {
        EXPECT_EQ(row == 1, list.GetCheck(row)) << row;
        EXPECT_EQ(63301 + 2 * row, list.GetItemData(row));
        EXPECT_EQ(longText + std::to_wstring(row), list.GetItemText(row, 1));
    }
    EXPECT_EQ(-1, list.GetSelectedRow());
    list.SelectRow(2);
    EXPECT_EQ(2, list.GetSelectedRow());
}

}  // namespace
