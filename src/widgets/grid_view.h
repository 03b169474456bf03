// How a grid shows its model and takes clicks and keys.
#pragma once

class QTableView;
class QWidget;

namespace tarn {

class GridModel;

// Shows the model in the grid: widths, hidden columns, row heights. The current row is
// the selected one, always: the first after new rows, and no click or key unselects it.
// A cell that is cut shows its text as a tool tip; Ctrl+C copies the current row.
// With a check box column: a click in its cell and the space key anywhere in the row tick
// it, a click on its heading is toggleByLastRow, unless the column says otherwise.
void prepareGrid(QTableView& grid, GridModel& model);

// Makes the screen large enough for so many rows and all shown columns of its grid, as
// far as the desk behind it goes; on a small monitor, as far as that goes.
void fitToGrid(QWidget& screen, const QTableView& grid, int lines);

}  // namespace tarn
