// A page of continuous paper as a PDF has it.
#pragma once

#include "dotmatrix/paper_painter.h"

namespace tarn::test {

// Before the first column, in points; and how far a word may be off.
inline constexpr double strip = 36;
inline constexpr double tolerance = 0.2 / 25.4 * dotmatrix::pointsPerInch;  // 0.2 mm

}  // namespace tarn::test
