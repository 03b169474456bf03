// A sheet that shows by how much a form is off: on the customer's paper, at the form's own
// set-up, every box's corners stand where the form's table has them, and a ruler where the
// form prints nothing.
#pragma once

#include "notes/layout.h"

namespace tarn {
class RawChannel;
}

namespace tarn::notes {

// Prints all lines of the form, with `itemLines` for items, as a note does: the set-up in a
// job of its own where the form has one, then the sheet. "[" is the first column of a box and
// "]" its last ("|" is both), with line and column between them where there is room; lines
// count from 1, columns as in the table. The other lines have a mark every five columns, the
// tens at each tenth, and their number at the left.
void printFormRuler(const Form& form, int itemLines, RawChannel& channel);

// Lines for items with which the form fills a sheet of 11 inches; 1 at least.
int itemLinesOfSheet(const Form& form);

}  // namespace tarn::notes
