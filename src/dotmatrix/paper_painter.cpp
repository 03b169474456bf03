#include "dotmatrix/paper_painter.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "dotmatrix/form_painter.h"

namespace tarn::dotmatrix {

namespace {

constexpr double pointsPerUnit = pointsPerInch / static_cast<double>(unitsPerInch);

// Scaled to the cell from this size: large enough for exact advances, and not past the
// size up to which the font engine keeps its glyphs (four times the speed).
constexpr int fontPixels = 64;
constexpr double em = 10.5;       // points; capitals come out 7/72 inch high, as 7 needles strike
constexpr double baseline = 8.9;  // points below the top of a row
constexpr double underline = 10.4;
constexpr double underlineWidth = 0.6;
constexpr double secondStrike = 0.3;  // points to the right

constexpr double holeSpacing = 36.0;  // points, from hole to hole
constexpr double holeRadius = 72.0 * 5 / 64;
constexpr double bandPoints = 36.0;

constexpr int titlePoints = 7;
constexpr double titleFromEdge = 6.0;  // points from the perforation to the middle of the title

const QColor ink(28, 28, 36);
const QColor titleColour(110, 110, 110);
const QColor perforationColour(190, 190, 190);
const QColor holeEdge(205, 205, 205);
const QColor holeFill(240, 240, 240);
const QColor bandColour(236, 246, 236);

bool continues(const Cell& before, const Cell& next) {
    return next.style == before.style && next.width == before.width &&
           next.x >= before.x + before.width && (next.x - before.x) % before.width == 0;
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

PaperPainter::PaperPainter(Sheet sheet, PaintOptions options)
    : sheet_(sheet), options_(std::move(options)) {
    plain_.setFamilies({QStringLiteral("Liberation Mono"), QStringLiteral("DejaVu Sans Mono"),
                        QStringLiteral("Courier New"), QStringLiteral("monospace")});
    plain_.setStyleHint(QFont::Monospace);
    plain_.setPixelSize(fontPixels);
    plain_.setHintingPreference(QFont::PreferNoHinting);
    plain_.setKerning(false);
    constexpr int measured = 64;
    advance_ =
        QFontMetricsF(plain_).horizontalAdvance(QString(measured, QLatin1Char('0'))) / measured;
}

void PaperPainter::paintForm(QPainter& painter, const FormPage& page) const {
    const double height = static_cast<double>(page.shape.height) * pointsPerUnit;
    const double strip = sheet_.strip * pointsPerInch;
    paintSheet(painter, height);
    paintPreprinted(painter, height);
    if (options_.ruler) {
        paintRuler(painter, page, options_.rulerCell, strip, sheet_.width * pointsPerInch - strip);
    }
    for (const PaperLine& line : page.lines) {
        paintLine(painter, line, static_cast<double>(line.y - page.shape.top) * pointsPerUnit);
    }
}

void PaperPainter::paintPreprinted(QPainter& painter, double height) const {
    if (options_.picture) {
        paintPicture(painter, *options_.picture,
                     QRectF(0, 0, sheet_.width * pointsPerInch, height));
    }
    if (options_.design) {
        paintDesign(painter, *options_.design, sheet_.strip * pointsPerInch);
    }
}

void PaperPainter::paintSheet(QPainter& painter, double height) const {
    const double width = sheet_.width * pointsPerInch;
    const double strip = sheet_.strip * pointsPerInch;
    painter.save();
    if (options_.bands) {
        const int bands = static_cast<int>(std::ceil(height / bandPoints));
        for (int band = 0; band < bands; band += 2) {
            const double top = band * bandPoints;
            painter.fillRect(
                QRectF(strip, top, width - 2 * strip, std::min(bandPoints, height - top)),
                bandColour);
        }
    }
    painter.setPen(QPen(holeEdge, 0.5));
    painter.setBrush(holeFill);
    const int holes = static_cast<int>(std::ceil(height / holeSpacing - 0.5));
    for (int hole = 0; hole < holes; ++hole) {
        const double y = (hole + 0.5) * holeSpacing;
        painter.drawEllipse(QPointF(strip / 2, y), holeRadius, holeRadius);
        painter.drawEllipse(QPointF(width - strip / 2, y), holeRadius, holeRadius);
    }
    QPen perforation(perforationColour, 0.5);
    perforation.setDashPattern({4, 4});
    painter.setPen(perforation);
    painter.drawLine(QPointF(strip, 0), QPointF(strip, height));
    painter.drawLine(QPointF(width - strip, 0), QPointF(width - strip, height));
    // Half of the perforation belongs to each of the forms that it parts.
    painter.drawLine(QPointF(0, 0.25), QPointF(width, 0.25));
    painter.drawLine(QPointF(0, height - 0.25), QPointF(width, height - 0.25));
    painter.restore();
    paintTitle(painter, height);
}

void PaperPainter::paintTitle(QPainter& painter, double height) const {
    if (options_.title.isEmpty()) {
        return;
    }
    QFont font = plain_;
    font.setPixelSize(titlePoints);
    painter.save();
    painter.setPen(titleColour);
    painter.setFont(font);
    // The ruler's line numbers have the left strip.
    const double fromLeft = options_.ruler
                                ? (sheet_.width - sheet_.strip) * pointsPerInch + titleFromEdge
                                : sheet_.strip * pointsPerInch - titleFromEdge;
    painter.translate(fromLeft, height / 2);
    painter.rotate(-90);
    painter.drawText(QRectF(-height / 2, -titlePoints, height, 2.0 * titlePoints), Qt::AlignCenter,
                     options_.title);
    painter.restore();
}

// Draws characters that stand side by side in one go, blanks between them included, so
// that a search in the PDF finds whole lines of text.
void PaperPainter::paintLine(QPainter& painter, const PaperLine& line, double y) const {
    QString run;
    const auto& cells = line.cells;
    for (std::size_t first = 0; first < cells.size();) {
        run = QChar(cells[first].character);
        std::size_t next = first + 1;
        for (; next < cells.size() && continues(cells[next - 1], cells[next]); ++next) {
            const auto steps = (cells[next].x - cells[next - 1].x) / cells[next].width;
            run += QString(steps - 1, QLatin1Char(' '));
            run += QChar(cells[next].character);
        }
        paintRun(painter, run, cells[first], y);
        first = next;
    }
}

void PaperPainter::paintRun(QPainter& painter, const QString& text, const Cell& first,
                            double y) const {
    const double left = sheet_.strip * pointsPerInch + first.x * pointsPerUnit;
    const double cellWidth = first.width * pointsPerUnit;
    const bool bold = (first.style & (emphasised | doubleStrike)) != 0;
    const bool both = (first.style & emphasised) != 0 && (first.style & doubleStrike) != 0;
    const bool italic = (first.style & italicShear) != 0;
    QFont font = plain_;
    if (bold || italic) {
        font.setBold(bold);
        font.setItalic(italic);
    }

    painter.save();
    painter.setPen(ink);
    painter.setFont(font);
    painter.translate(left, y + baseline);
    painter.scale(cellWidth / advance_, em / fontPixels);
    painter.drawText(QPointF(0, 0), text);
    if (both) {
        painter.drawText(QPointF(secondStrike * advance_ / cellWidth, 0), text);
    }
    painter.restore();

    if ((first.style & underlined) != 0) {
        painter.fillRect(QRectF(left, y + underline, cellWidth * static_cast<double>(text.size()),
                                underlineWidth),
                         ink);
    }
}

}  // namespace tarn::dotmatrix
