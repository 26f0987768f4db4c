// The control wrappers where a message's details are easy to get wrong: check boxes of a list view,
// long item texts, moving rows, tree selection as the dialog is told of it, 32-bit spin ranges, combo
// item data, and hidden labels that hold "/"-separated lists.
#include <gtest/gtest.h>
#include <windows.h>

#include "ui/ComboBox.h"
#include "ui/ControlText.h"
#include "ui/ListRowMove.h"
#include "ui/ListView.h"
#include "ui/Spin.h"
#include "ui/TreeView.h"
#include "win32/resources/FrameworkTestRes.h"
#include "win32/ui/ScriptedDialog.h"

namespace {

using testing_support::FrameworkTest;
using testing_support::ScriptedDialog;
using testing_support::TextOf;
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

// The list editors' up and down buttons: the selected row's texts trade places with a neighbour's,
// the selection and focus go with them and the item data stays in place.
TEST_F(ControlsTest, TheSelectedRowMovesWithItsSelectionAndFocus) {
    const struct {
        int selected;  // -1: none
        bool up;
        const wchar_t* rows;
        int selectedAfter;
    } cases[] = {
        {1, true, L"b0 b1 b2|a0 a1 a2|c0 c1 c2", 0},    {1, false, L"a0 a1 a2|c0 c1 c2|b0 b1 b2", 2},
        {2, true, L"a0 a1 a2|c0 c1 c2|b0 b1 b2", 1},    {0, true, L"a0 a1 a2|b0 b1 b2|c0 c1 c2", 0},
        {2, false, L"a0 a1 a2|b0 b1 b2|c0 c1 c2", 2},   {-1, true, L"a0 a1 a2|b0 b1 b2|c0 c1 c2", -1},
        {-1, false, L"a0 a1 a2|b0 b1 b2|c0 c1 c2", -1},
    };
    ui::ListView list(dialog_.Item(IDC_FW_LIST));
    for (int column = 0; column < 3; ++column) list.InsertColumn(column, L"Column", 40);
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << "row " << c.selected << (c.up ? " up" : " down"));
        list.DeleteAllItems();
        for (int row = 0; row < 3; ++row) {
            std::wstring name(1, static_cast<wchar_t>(L'a' + row));
            list.InsertItem(row, name + L"0", 100 + row);
            list.SetItemText(row, 1, name + L"1");
            list.SetItemText(row, 2, name + L"2");
        }
        if (c.selected >= 0) list.SelectRow(c.selected);
        c.up ? ui::MoveListRowUp(list) : ui::MoveListRowDown(list);
        std::wstring rows;
        for (int row = 0; row < list.GetItemCount(); ++row) {
            for (int column = 0; column < 3; ++column)
                rows += (row && !column ? L"|" : column ? L" " : L"") + list.GetItemText(row, column);
            EXPECT_EQ(100 + row, list.GetItemData(row)) << "item data stays in place";
        }
        EXPECT_EQ(c.rows, rows);
        EXPECT_EQ(c.selectedAfter, list.GetSelectedRow());
        EXPECT_EQ(c.selectedAfter, list.GetNextItem(-1, LVNI_FOCUSED));
        EXPECT_EQ(-1, list.GetNextItem(c.selectedAfter, LVNI_SELECTED)) << "only one row is selected";
    }
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

TEST_F(ControlsTest, AHiddenLabelSplitsAtEverySlashKeepingEmptyParts) {
    HWND label = dialog_.Item(IDC_FW_LABEL);
    ASSERT_FALSE(IsWindowVisible(label));
    const struct {
        const wchar_t* text;  // null: as the template has it
        Parts parts;
    } cases[] = {
        {nullptr, {L"General", L"", L"View", L""}},
        {L"外観", {L"外観"}},
        {L" a / b ", {L" a ", L" b "}},
        {L"/", {L"", L""}},
        {L"", {}},
    };
    for (const auto& c : cases) {
        if (c.text) SetWindowTextW(label, c.text);
        Parts parts{L"left", L"over"};
        EXPECT_EQ(static_cast<int>(c.parts.size()), ui::SplitControlText(label, parts));
        EXPECT_EQ(c.parts, parts);
    }
    SetWindowTextW(label, std::wstring(3000, L'x').c_str());
    EXPECT_EQ(3000u, ui::ControlText(label).size()) << "no length limit of its own";
}

}  // namespace
