#include "dotmatrix/paper_painter.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "dotmatrix/form_painter.h"
#include "dotmatrix/painter_canvas.h"

namespace tarn::dotmatrix {

namespace {

constexpr double baseline = 8.9;  // points below the top of a row
constexpr double underline = 10.4;
constexpr double underlineWidth = 0.6;
constexpr double secondStrike = 0.3;  // points to the right

constexpr double holeSpacing = 36.0;  // points, from hole to hole
constexpr double holeRadius = 72.0 * 5 / 64;
constexpr double bandPoints = 36.0;

constexpr int titlePoints = 7;
constexpr double titleFromEdge = 6.0;  // points from the perforation to the middle of the title

const QColor titleColour(110, 110, 110);
const QColor perforationColour(190, 190, 190);
const QColor holeEdge(205, 205, 205);
const QColor holeFill(240, 240, 240);
const QColor bandColour(236, 246, 236);

bool continues(const Cell& before, const Cell& next) {
    return next.style == before.style && next.width == before.width &&
           next.x >= before.x + before.width && (next.x - before.x) % before.width == 0;
}

void paintRun(PaperCanvas& canvas, PrintedRun& run, const Cell& first, double strip, double y) {
    const double left = strip + first.x * pointsPerUnit;
    run.at = QPointF(left, y + baseline);
    run.cell = first.width * pointsPerUnit;
    run.bold = (first.style & (emphasised | doubleStrike)) != 0;
    run.italic = (first.style & italicShear) != 0;
    canvas.run(run);
    if ((first.style & emphasised) != 0 && (first.style & doubleStrike) != 0) {
        run.at.rx() += secondStrike;
        canvas.run(run);
    }
    if ((first.style & underlined) != 0) {
        canvas.fill(QRectF(left, y + underline, run.cell * static_cast<double>(run.text.size()),
                           underlineWidth),
                    printInk);
    }
}

// Draws characters that stand side by side in one go, blanks between them included, so
// that a search in the PDF finds whole lines of text.
void paintLine(PaperCanvas& canvas, const PaperLine& line, double strip, double y) {
    PrintedRun run;
    const auto& cells = line.cells;
    for (std::size_t first = 0; first < cells.size();) {
        run.text = QChar(cells[first].character);
        std::size_t next = first + 1;
        for (; next < cells.size() && continues(cells[next - 1], cells[next]); ++next) {
            for (auto x = cells[next - 1].x + cells[next].width; x < cells[next].x;
                 x += cells[next].width) {
                run.text += QLatin1Char(' ');
            }
            run.text += QChar(cells[next].character);
        }
        paintRun(canvas, run, cells[first], strip, y);
        first = next;
    }
}

}  // namespace

Sheet sheetFor(PaperUnits contentWidth) {
    Sheet sheet;
    const double needed =
        static_cast<double>(contentWidth) / static_cast<double>(unitsPerInch) + 2 * sheet.strip;
    constexpr double wide = 14.875;
    if (needed > wide) {
        sheet.width = std::ceil(needed * 2) / 2;
    } else if (needed > sheet.width) {
        sheet.width = wide;
    }
    return sheet;
}

Sheet sheetFor(PaperUnits contentWidth, const PaintOptions& options) {
    if (options.design) {
        for (const FormBox& box : options.design->boxes) {
            contentWidth = std::max(contentWidth, box.x + box.width);
        }
    }
    return sheetFor(contentWidth);
}

PaperPainter::PaperPainter(PaintOptions options) : options_(std::move(options)) {}

void PaperPainter::paintForm(QPainter& painter, const FormPage& page) const {
    painter.save();
    PainterCanvas canvas(painter, print_);
    paintForm(canvas, page);
    painter.restore();
}

void PaperPainter::paintForm(PaperCanvas& canvas, const FormPage& page) const {
    const Sheet sheet = sheetOf(page);
    const double width = sheet.width * pointsPerInch;
    const double strip = sheet.strip * pointsPerInch;
    const double height = static_cast<double>(page.shape.height) * pointsPerUnit;
    canvas.background(width, page.shape.height, page.design,
                      [&] { paintBackground(canvas, sheet, page.design.get(), height); });
    if (options_.ruler) {
        paintRuler(canvas, page, options_.rulerCell, strip, width - strip);
    }
    for (const PaperLine& line : page.lines) {
        paintLine(canvas, line, strip,
                  static_cast<double>(line.y - page.shape.top) * pointsPerUnit);
    }
}

void PaperPainter::paintBackground(PaperCanvas& canvas, const Sheet& sheet,
                                   const FormDesign* ofPage, double height) const {
    paintSheet(canvas, sheet, height);
    paintTitle(canvas, sheet, height);
    const double left = sheet.strip * pointsPerInch;
    if (ofPage != nullptr) {
        return paintDesign(canvas, *ofPage, left);
    }
    if (options_.picture) {
        canvas.picture(QRectF(0, 0, sheet.width * pointsPerInch, height), *options_.picture);
    }
    if (options_.design) {
        paintDesign(canvas, *options_.design, left);
    }
}

void PaperPainter::paintSheet(PaperCanvas& canvas, const Sheet& sheet, double height) const {
    const double width = sheet.width * pointsPerInch;
    const double strip = sheet.strip * pointsPerInch;
    if (options_.bands) {
        const int bands = static_cast<int>(std::ceil(height / bandPoints));
        for (int band = 0; band < bands; band += 2) {
            const double top = band * bandPoints;
            canvas.fill(QRectF(strip, top, width - 2 * strip, std::min(bandPoints, height - top)),
                        bandColour);
        }
    }
    const Stroke edge{.colour = holeEdge, .width = 0.5};
    const int holes = static_cast<int>(std::ceil(height / holeSpacing - 0.5));
    for (int hole = 0; hole < holes; ++hole) {
        const double y = (hole + 0.5) * holeSpacing;
        canvas.disc(QPointF(strip / 2, y), holeRadius, holeFill, edge);
        canvas.disc(QPointF(width - strip / 2, y), holeRadius, holeFill, edge);
    }
    const Stroke perforation{.colour = perforationColour, .width = 0.5, .dashed = true};
    canvas.line(QPointF(strip, 0), QPointF(strip, height), perforation);
    canvas.line(QPointF(width - strip, 0), QPointF(width - strip, height), perforation);
    // Half of the perforation belongs to each of the forms that it parts.
    canvas.line(QPointF(0, 0.25), QPointF(width, 0.25), perforation);
    canvas.line(QPointF(0, height - 0.25), QPointF(width, height - 0.25), perforation);
}

void PaperPainter::paintTitle(PaperCanvas& canvas, const Sheet& sheet, double height) const {
    if (options_.title.isEmpty()) {
        return;
    }
    QFont font = print_.face(false, false);
    font.setPixelSize(titlePoints);
    const QFontMetricsF metrics(font);
    // The ruler's line numbers have the left strip.
    const double middle = options_.ruler
                              ? (sheet.width - sheet.strip) * pointsPerInch + titleFromEdge
                              : sheet.strip * pointsPerInch - titleFromEdge;
    const double baselineX = middle - metrics.height() / 2 + metrics.ascent();
    const double half = metrics.horizontalAdvance(options_.title) / 2;
    canvas.words({.at = QPointF(baselineX, height / 2 + half),
                  .turn = -90,
                  .scale = 1,
                  .font = font,
                  .colour = titleColour,
                  .text = options_.title});
}

}  // namespace tarn::dotmatrix
