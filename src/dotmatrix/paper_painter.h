// Draws forms of the continuous paper: one routine for PDF, picture, printer and screen.
// Needs a QGuiApplication for its fonts.
#pragma once

#include <QImage>
#include <QString>
#include <memory>

#include "dotmatrix/continuous_paper.h"
#include "dotmatrix/form_design.h"
#include "dotmatrix/paper_canvas.h"
#include "dotmatrix/paper_fonts.h"

class QPainter;

namespace tarn::dotmatrix {

// A sheet with its two strips of tractor holes; lengths in inches.
struct Sheet {
    double width = 9.5;
    double strip = 0.5;  // of each side; the first print position is its inner edge
};

// The narrower of the two usual papers, 9.5 and 14.875 inches, that holds the content;
// a wider one, to the half inch, for what no paper holds.
Sheet sheetFor(PaperUnits contentWidth);

struct PaintOptions {
    bool bands = false;  // faint green bands of half an inch
    QString title{};     // written along a strip of each form, beside the holes
    bool ruler = false;  // line and column numbers over the print
    PaperUnits rulerCell = unitsPerInch / 10;  // width of a column on an empty form
    // The pre-printed form, under what has none of its own; none: blank paper.
    std::shared_ptr<const FormDesign> design{};
    std::shared_ptr<const QImage> picture{};  // of the design, null for none
};

// The sheet for what was printed and for what the form has beside it.
Sheet sheetFor(PaperUnits contentWidth, const PaintOptions& options);

class PaperPainter {
public:
    explicit PaperPainter(PaintOptions options = {});

    // Of the paper that the form is of.
    Sheet sheetOf(const FormPage& page) const { return sheetFor(page.contentWidth, options_); }
    const PrintFont& print() const { return print_; }
    void paintForm(PaperCanvas& canvas, const FormPage& page) const;
    // With its origin, left upper corner of the sheet, at the painter's; the painter's unit
    // must be the point, 1/72 inch.
    void paintForm(QPainter& painter, const FormPage& page) const;

private:
    void paintBackground(PaperCanvas& canvas, const Sheet& sheet, const FormDesign* ofPage,
                         double height) const;
    void paintSheet(PaperCanvas& canvas, const Sheet& sheet, double height) const;
    void paintTitle(PaperCanvas& canvas, const Sheet& sheet, double height) const;

    PaintOptions options_;
    PrintFont print_;
};

}  // namespace tarn::dotmatrix
