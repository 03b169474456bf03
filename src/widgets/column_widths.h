// The widths of a grid's columns.
#pragma once

class QTableView;

namespace tarn {

class GridModel;

// Each column as wide as its table says, and at least as its heading. Those of free text
// give way where the grid is narrower than its columns, down to a part of their width, and
// take the room that is left over. Where that isn't enough, only those up to the last amount
// give way for it. Once the user has drawn a column the widths stay.
void adaptColumns(QTableView& grid, const GridModel& model);

}  // namespace tarn
