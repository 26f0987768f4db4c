#include "ui/ListRowMove.h"

#include <string>

namespace ui {

namespace {

void SwapRows(const ListView& list, int row, int other) {
    int columns = list.GetColumnCount();
    for (int column = 0; column < columns; ++column) {
        std::wstring text = list.GetItemText(row, column);
        list.SetItemText(row, column, list.GetItemText(other, column));
        list.SetItemText(other, column, text);
    }
    list.SelectRow(other);
    list.EnsureVisible(other);
}

}  // namespace

void MoveListRowUp(const ListView& list) {
    int row = list.GetSelectedRow();
    if (row > 0) SwapRows(list, row, row - 1);
}

void MoveListRowDown(const ListView& list) {
    int row = list.GetSelectedRow();
    if (row >= 0 && row + 1 < list.GetItemCount()) SwapRows(list, row, row + 1);
}

}  // namespace ui
