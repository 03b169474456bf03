// Draws what lies under and over the print: the pre-printed form and the ruler.
#pragma once

#include "dotmatrix/continuous_paper.h"
#include "dotmatrix/form_design.h"
#include "dotmatrix/paper_canvas.h"

namespace tarn::dotmatrix {

// `left` is where the first print position is.
void paintDesign(PaperCanvas& canvas, const FormDesign& form, double left);

// Line numbers at the left edge of the print, a mark every ten columns with its number,
// counted in the pitch in which the lines below it are printed. `cell` is the width of a
// character where nothing is printed; `right` where the print area ends.
void paintRuler(PaperCanvas& canvas, const FormPage& page, PaperUnits cell, double left,
                double right);

}  // namespace tarn::dotmatrix
