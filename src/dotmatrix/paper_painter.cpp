#include "dotmatrix/paper_painter.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "dotmatrix/form_painter.h"

namespace tarn::dotmatrix {

namespace {

constexpr double kPointsPerUnit = kPointsPerInch / static_cast<double>(kUnitsPerInch);

// Scaled to the cell from this size: large enough for exact advances, and not past the
// size up to which the font engine keeps its glyphs (four times the speed).
constexpr int kFontPixels = 64;
constexpr double kEm = 10.5;       // points; capitals come out 7/72 inch high, as 7 needles strike
constexpr double kBaseline = 8.9;  // points below the top of a row
constexpr double kUnderline = 10.4;
constexpr double kUnderlineWidth = 0.6;
constexpr double kSecondStrike = 0.3;  // points to the right

constexpr double kHoleSpacing = 36.0;  // points, from hole to hole
constexpr double kHoleRadius = 72.0 * 5 / 64;
constexpr double kBand = 36.0;

constexpr int kTitlePoints = 7;
constexpr double kTitleFromEdge = 6.0;  // points from the perforation to the middle of the title

const QColor kInk(28, 28, 36);
const QColor kTitleColour(110, 110, 110);
const QColor kPerforation(190, 190, 190);
const QColor kHoleEdge(205, 205, 205);
const QColor kHoleFill(240, 240, 240);
const QColor kBandColour(236, 246, 236);

bool continues(const Cell& before, const Cell& next) {
    return next.style == before.style && next.width == before.width &&
           next.x >= before.x + before.width && (next.x - before.x) % before.width == 0;
}

}  // namespace

Sheet sheetFor(PaperUnits contentWidth) {
    Sheet sheet;
    const double needed =
        static_cast<double>(contentWidth) / static_cast<double>(kUnitsPerInch) + 2 * sheet.strip;
    constexpr double kWide = 14.875;
    if (needed > kWide) {
        sheet.width = std::ceil(needed * 2) / 2;
    } else if (needed > sheet.width) {
        sheet.width = kWide;
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
    plain_.setPixelSize(kFontPixels);
    plain_.setHintingPreference(QFont::PreferNoHinting);
    plain_.setKerning(false);
    constexpr int kMeasured = 64;
    advance_ =
        QFontMetricsF(plain_).horizontalAdvance(QString(kMeasured, QLatin1Char('0'))) / kMeasured;
}

void PaperPainter::paintForm(QPainter& painter, const FormPage& page) const {
    const double height = static_cast<double>(page.shape.height) * kPointsPerUnit;
    const double strip = sheet_.strip * kPointsPerInch;
    paintSheet(painter, height);
    paintPreprinted(painter, height);
    if (options_.ruler) {
        paintRuler(painter, page, options_.rulerCell, strip, sheet_.width * kPointsPerInch - strip);
    }
    for (const PaperLine& line : page.lines) {
        paintLine(painter, line, static_cast<double>(line.y - page.shape.top) * kPointsPerUnit);
    }
}

void PaperPainter::paintPreprinted(QPainter& painter, double height) const {
    if (options_.picture) {
        paintPicture(painter, *options_.picture,
                     QRectF(0, 0, sheet_.width * kPointsPerInch, height));
    }
    if (options_.design) {
        paintDesign(painter, *options_.design, sheet_.strip * kPointsPerInch);
    }
}

void PaperPainter::paintSheet(QPainter& painter, double height) const {
    const double width = sheet_.width * kPointsPerInch;
    const double strip = sheet_.strip * kPointsPerInch;
    painter.save();
    if (options_.bands) {
        const int bands = static_cast<int>(std::ceil(height / kBand));
        for (int band = 0; band < bands; band += 2) {
            const double top = band * kBand;
            painter.fillRect(QRectF(strip, top, width - 2 * strip, std::min(kBand, height - top)),
                             kBandColour);
        }
    }
    painter.setPen(QPen(kHoleEdge, 0.5));
    painter.setBrush(kHoleFill);
    const int holes = static_cast<int>(std::ceil(height / kHoleSpacing - 0.5));
    for (int hole = 0; hole < holes; ++hole) {
        const double y = (hole + 0.5) * kHoleSpacing;
        painter.drawEllipse(QPointF(strip / 2, y), kHoleRadius, kHoleRadius);
        painter.drawEllipse(QPointF(width - strip / 2, y), kHoleRadius, kHoleRadius);
    }
    QPen perforation(kPerforation, 0.5);
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
    font.setPixelSize(kTitlePoints);
    painter.save();
    painter.setPen(kTitleColour);
    painter.setFont(font);
    // The ruler's line numbers have the left strip.
    const double fromLeft = options_.ruler
                                ? (sheet_.width - sheet_.strip) * kPointsPerInch + kTitleFromEdge
                                : sheet_.strip * kPointsPerInch - kTitleFromEdge;
    painter.translate(fromLeft, height / 2);
    painter.rotate(-90);
    painter.drawText(QRectF(-height / 2, -kTitlePoints, height, 2.0 * kTitlePoints),
                     Qt::AlignCenter, options_.title);
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
    const double left = sheet_.strip * kPointsPerInch + first.x * kPointsPerUnit;
    const double cellWidth = first.width * kPointsPerUnit;
    const bool bold = (first.style & (kEmphasised | kDoubleStrike)) != 0;
    const bool both = (first.style & kEmphasised) != 0 && (first.style & kDoubleStrike) != 0;
    const bool italic = (first.style & kItalic) != 0;
    QFont font = plain_;
    if (bold || italic) {
        font.setBold(bold);
        font.setItalic(italic);
    }

    painter.save();
    painter.setPen(kInk);
    painter.setFont(font);
    painter.translate(left, y + kBaseline);
    painter.scale(cellWidth / advance_, kEm / kFontPixels);
    painter.drawText(QPointF(0, 0), text);
    if (both) {
        painter.drawText(QPointF(kSecondStrike * advance_ / cellWidth, 0), text);
    }
    painter.restore();

    if ((first.style & kUnderlined) != 0) {
        painter.fillRect(QRectF(left, y + kUnderline, cellWidth * static_cast<double>(text.size()),
                                kUnderlineWidth),
                         kInk);
    }
}

}  // namespace tarn::dotmatrix
