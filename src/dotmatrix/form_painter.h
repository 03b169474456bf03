// Draws what lies under and over the print: the pre-printed form and the ruler.
#pragma once

#include <QImage>
#include <QRectF>

#include "dotmatrix/continuous_paper.h"
#include "dotmatrix/form_design.h"

class QPainter;

namespace tarn::dotmatrix {

// The painter's unit is the point; `left` is where the first print position is.
void paintDesign(QPainter& painter, const FormDesign& form, double left);

// The picture stretched over `sheet`.
void paintPicture(QPainter& painter, const QImage& picture, const QRectF& sheet);

// Line numbers at the left edge of the print, a mark every ten columns with its number,
// counted in the pitch in which the lines below it are printed. `cell` is the width of a
// character where nothing is printed; `right` where the print area ends.
void paintRuler(QPainter& painter, const FormPage& page, PaperUnits cell, double left,
                double right);

}  // namespace tarn::dotmatrix
