// The control wrappers where a message's details are easy to get wrong: check boxes of a list view,
// long item texts, moving rows, and hidden labels that hold "/"-separated lists. The tree, the combo
// boxes and the spin are worked through the option dialog and its pages.
#include <gtest/gtest.h>
#include <windows.h>

#include "ui/ControlText.h"
#include "ui/ListRowMove.h"
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
