// The list editors' up and down buttons: the selected row's texts trade places with a neighbour's.
#include "ui/ListRowMove.h"

#include <gtest/gtest.h>
#include <windows.h>

#include "win32/resources/FrameworkTestRes.h"
#include "win32/ui/ScriptedDialog.h"

namespace {

using testing_support::FrameworkTest;
using testing_support::ScriptedDialog;

class ListRowMoveTest : public FrameworkTest {
protected:
    // A list of three rows a, b, c, of three columns each, with item data 100, 101, 102.
    void Open() {
        ASSERT_TRUE(dialog_.Create(nullptr));
        list_ = ui::ListView(dialog_.Item(IDC_FW_LIST));
        for (int column = 0; column < 3; ++column) list_.InsertColumn(column, L"Column", 40);
        for (int row = 0; row < 3; ++row) {
            std::wstring name(1, static_cast<wchar_t>(L'a' + row));
            list_.InsertItem(row, name + L"0", 100 + row);
            list_.SetItemText(row, 1, name + L"1");
            list_.SetItemText(row, 2, name + L"2");
        }
    }

    // Each row's texts joined by spaces, rows joined by "|".
    std::wstring Rows() {
        std::wstring rows;
        for (int row = 0; row < list_.GetItemCount(); ++row) {
            if (row) rows += L"|";
            for (int column = 0; column < 3; ++column) rows += (column ? L" " : L"") + list_.GetItemText(row, column);
        }
        return rows;
    }

    ScriptedDialog dialog_{IDD_FRAMEWORK_FIELDS};
    ui::ListView list_;
};

TEST_F(ListRowMoveTest, TheSelectedRowMovesWithItsSelectionAndFocus) {
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
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << "row " << c.selected << (c.up ? " up" : " down"));
        Open();
        if (c.selected >= 0) list_.SelectRow(c.selected);
        c.up ? ui::MoveListRowUp(list_) : ui::MoveListRowDown(list_);
        EXPECT_EQ(c.rows, Rows());
        EXPECT_EQ(c.selectedAfter, list_.GetSelectedRow());
        EXPECT_EQ(c.selectedAfter, list_.GetNextItem(-1, LVNI_FOCUSED));
        EXPECT_EQ(-1, list_.GetNextItem(c.selectedAfter, LVNI_SELECTED)) << "only one row is selected";
        for (int row = 0; row < 3; ++row) EXPECT_EQ(100 + row, list_.GetItemData(row)) << "item data stays in place";
        dialog_.DestroyWindow();
    }
}

}  // namespace
