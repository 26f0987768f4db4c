// Moving the selected row of a list one place up or down, as the list editors' arrow buttons do:
// the texts of every column change places with the neighbour's, and the selection, the focus and
// the view follow the row. Item data and check marks stay where they were.
#pragma once

#include "ui/ListView.h"

namespace ui {

// Nothing happens without a selection, or when the selected row is the first (up) or last (down).
void MoveListRowUp(const ListView& list);
void MoveListRowDown(const ListView& list);

}  // namespace ui
