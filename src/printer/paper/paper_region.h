// A piece of the paper as text.
#pragma once

#include <QString>

#include "dotmatrix/paper_roll.h"

namespace tarn::dotmatrix {

// x from the first print position, y from the top of the first form; both ends of a
// side may come in either order.
struct PaperRegion {
    PaperUnits left = 0;
    PaperUnits top = 0;
    PaperUnits right = 0;
    PaperUnits bottom = 0;

    PaperRegion sorted() const;
    bool empty() const { return left == right || top == bottom; }
};

// The characters whose middle lies in the region, a line for each row from the first to
// the last printed one, separated by LF; columns stay below each other.
QString textIn(PaperRoll& roll, const PaperRegion& region);

// The whole printed rows of one form.
PaperRegion regionOf(const PaperRoll& roll, std::size_t form);

}  // namespace tarn::dotmatrix
