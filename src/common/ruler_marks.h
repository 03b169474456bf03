// The marks on a sheet that shows by how much a form is off. Column 1 is the blank that every
// call of the raw channel begins with.
#pragma once

#include <string>

namespace tarn {

// "[12/44   ]": the first and the last column of a box, with as much of its line and column
// between them as there is room for; "|" where they are one.
std::string boxCorners(int line, int column, int width);

// The text of a line without boxes, from column 2 to `reach`: a mark every five columns, the
// tens at each tenth, and the line's number at the left.
std::string rulerLine(int line, int reach);

}  // namespace tarn
