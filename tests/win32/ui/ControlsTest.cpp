// The control wrappers where a message's details are easy to get wrong: check boxes of a list view,
// long item texts, tree selection as the dialog is told of it, 32-bit spin ranges, combo item data.
#include <gtest/gtest.h>
#include <windows.h>

#include "ui/ComboBox.h"
#include "ui/ListView.h"
#include "ui/Spin.h"
#include "ui/TreeView.h"
#include "win32/resources/FrameworkTestRes.h"
#include "win32/ui/ScriptedDialog.h"

namespace {

using testing_support::FrameworkTest;
using testing_support::ScriptedDialog;
using testing_support::TextOf;

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

TEST_F(ControlsTest, SelectingATreeItemTellsTheDialogWhichDataItHolds) {
    std::vector<LPARAM> told;
    dialog_.notify = [&](const NMHDR& header) -> std::optional<LRESULT> {
        if (header.idFrom != IDC_FW_TREE || header.code != TVN_SELCHANGEDW) return std::nullopt;
        told.push_back(reinterpret_cast<const NMTREEVIEWW&>(header).itemNew.lParam);
        return 0;
    };
    ui::TreeView tree(dialog_.Item(IDC_FW_TREE));
    HTREEITEM root = tree.InsertItem(L"全体", 1007);
    HTREEITEM looks = tree.InsertItem(L"外観", 1000, root);
    HTREEITEM colours = tree.InsertItem(L"色、フォント", 26, looks);
    HTREEITEM skin = tree.InsertItem(L"スキン", 12, looks);
    told.clear();  // the first item may have become the selection by itself
    EXPECT_TRUE(tree.SelectItem(skin));
    EXPECT_EQ(skin, tree.GetSelectedItem());
    EXPECT_EQ(12, tree.GetItemData(tree.GetSelectedItem()));
    EXPECT_EQ(L"スキン", tree.GetItemText(skin));
    EXPECT_EQ(colours, tree.GetChildItem(looks));
    EXPECT_EQ(skin, tree.GetNextSiblingItem(colours));
    EXPECT_EQ(root, tree.GetParentItem(looks));
    EXPECT_EQ(4, tree.GetCount());
    EXPECT_EQ(std::vector<LPARAM>{12}, told);
}

TEST_F(ControlsTest, ASpinKeepsItsPositionInsideA32BitRange) {
    ui::Spin spin(dialog_.Item(IDC_FW_SPIN));
    spin.SetRange(1, 100000);
    int lower = 0, upper = 0;
    spin.GetRange(lower, upper);
    EXPECT_EQ(1, lower);
    EXPECT_EQ(100000, upper);
    const struct {
        int set;
        int position;
    } cases[] = {{70000, 70000}, {100001, 100000}, {0, 1}};
    for (const auto& c : cases) {
        spin.SetPos(c.set);
        EXPECT_EQ(c.position, spin.GetPos()) << c.set;
    }
    EXPECT_EQ(L"1", TextOf(dialog_.Item(IDC_FW_UINT))) << "the buddy shows the position";
}

TEST_F(ControlsTest, ComboItemsCarryTextAndData) {
    ui::ComboBox combo(dialog_.Item(IDC_FW_COMBO));
    for (int i = 0; i < 3; ++i) combo.SetItemData(combo.AddString(L"command " + std::to_wstring(i)), 42001 + i);
    EXPECT_EQ(3, combo.GetCount());
    EXPECT_EQ(-1, combo.GetCurSel());
    combo.SetCurSel(1);
    EXPECT_EQ(L"command 1", combo.GetLBText(combo.GetCurSel()));
    EXPECT_EQ(42001 + 1, combo.GetItemData(combo.GetCurSel()));
    EXPECT_EQ(2, combo.FindStringExact(-1, L"COMMAND 2"));
    EXPECT_EQ(L"", combo.GetLBText(7));
    combo.ResetContent();
    EXPECT_EQ(0, combo.GetCount());
}

}  // namespace
