// What a form is drawn on: a picture, the window, a printer (PainterCanvas) or a PDF file
// (PdfCanvas). Lengths are points, y goes down from the upper edge of the sheet.
#pragma once

#include <QColor>
#include <QFont>
#include <QImage>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <functional>
#include <memory>

#include "dotmatrix/continuous_paper.h"

namespace tarn::dotmatrix {

inline constexpr double pointsPerInch = 72.0;
inline constexpr double pointsPerUnit = pointsPerInch / static_cast<double>(unitsPerInch);

// Dashes and the gaps between them are this many times as long as their line is wide.
inline constexpr double dashWidths = 4;

struct Stroke {
    QColor colour;
    double width = 0;
    bool dashed = false;
};

// A text in letters of their own widths. `font` has a size in pixels, which `scale` brings to
// points.
struct Words {
    QPointF at;       // left end of the baseline
    double turn = 0;  // degrees clockwise
    double scale = 1;
    QFont font;
    QColor colour;
    QString text;
};

// Characters of one look in cells side by side.
struct PrintedRun {
    QPointF at;  // left end of the baseline
    double cell = 0;
    bool bold = false;
    bool italic = false;
    QString text;
};

class PaperCanvas {
public:
    PaperCanvas() = default;
    PaperCanvas(const PaperCanvas&) = delete;
    PaperCanvas& operator=(const PaperCanvas&) = delete;
    virtual ~PaperCanvas() = default;

    virtual void fill(const QRectF& area, const QColor& colour) = 0;
    virtual void frame(const QRectF& area, const Stroke& stroke) = 0;
    virtual void disc(const QPointF& centre, double radius, const QColor& filling,
                      const Stroke& edge) = 0;
    virtual void line(const QPointF& from, const QPointF& to, const Stroke& stroke) = 0;
    virtual void picture(const QRectF& area, const QImage& image) = 0;
    virtual void words(const Words& words) = 0;
    virtual void run(const PrintedRun& run) = 0;
    // What is the same under the print of all forms of this size and design; `draw` puts it
    // here. `width` is the sheet's.
    virtual void background(double width, PaperUnits height,
                            const std::shared_ptr<const FormDesign>& form,
                            const std::function<void()>& draw) = 0;
};

}  // namespace tarn::dotmatrix
