#include "dotmatrix/form_painter.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>

#include "dotmatrix/paper_painter.h"

namespace tarn::dotmatrix {

namespace {

constexpr double kPointsPerUnit = kPointsPerInch / static_cast<double>(kUnitsPerInch);
constexpr PaperUnits kLine = kUnitsPerInch / 6;

// Needles strike from 1.9 to 10.9 points below the top of a row: a box drawn a point
// higher holds them, and a label of the smallest size stays clear of capitals.
constexpr double kBoxRise = 1.0;
constexpr double kRoomyLabel = 5.0;
constexpr double kTightLabel = 3.0;
constexpr double kBoxLine = 0.4;

constexpr int kFontPixels = 48;  // scaled down from it, for sharp small letters
constexpr double kFormText = 9.0;
constexpr double kFormTextBaseline = 8.9;
constexpr double kRulerLetters = 4.0;

const QColor kFormInk(52, 116, 138);
const QColor kRulerInk(196, 84, 40);
const QColor kGuide(196, 84, 40, 70);

QFont letters() {
    QFont font;
    font.setFamilies({QStringLiteral("Liberation Sans"), QStringLiteral("DejaVu Sans"),
                      QStringLiteral("Arial"), QStringLiteral("sans-serif")});
    font.setPixelSize(kFontPixels);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

// One text of `points` height with its baseline at `at`, cut to `width`.
void paintLetters(QPainter& painter, const QPointF& at, double points, double width,
                  const QString& text) {
    if (text.isEmpty()) {
        return;
    }
    const QFont font = letters();
    const double scale = points / kFontPixels;
    const QString shown = QFontMetricsF(font).elidedText(text, Qt::ElideRight, width / scale);
    if (shown == QStringLiteral("\u2026")) {
        return;  // no room for a single letter
    }
    painter.save();
    painter.translate(at);
    painter.scale(scale, scale);
    painter.setFont(font);
    painter.drawText(QPointF(0, 0), shown);
    painter.restore();
}

void paintBox(QPainter& painter, const FormBox& box, double left) {
    const QRectF frame(left + static_cast<double>(box.x) * kPointsPerUnit,
                       static_cast<double>(box.y) * kPointsPerUnit - kBoxRise,
                       static_cast<double>(box.width) * kPointsPerUnit,
                       static_cast<double>(box.height) * kPointsPerUnit);
    painter.setPen(QPen(kFormInk, kBoxLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(frame);
    // With half a line to spare the words stand above the print.
    const bool roomy = box.height % kLine != 0;
    const double points = roomy ? kRoomyLabel : kTightLabel;
    paintLetters(painter, frame.topLeft() + QPointF(1.0, points * 0.95), points,
                 frame.width() - 1.5, QString::fromStdString(box.label));
}

PaperUnits cellOf(const PaperLine& line, PaperUnits otherwise) {
    return line.cells.empty() ? otherwise : line.cells.front().width;
}

// Marks from `top` to `bottom` for cells of this width.
void paintColumns(QPainter& painter, PaperUnits cell, double top, double bottom, double left,
                  double right) {
    const double step = static_cast<double>(cell) * kPointsPerUnit;
    for (int column = 10; left + (column - 1) * step < right; column += 10) {
        const double x = left + (column - 0.5) * step;
        painter.setPen(QPen(kGuide, 0.3));
        painter.drawLine(QPointF(x, top), QPointF(x, bottom));
        painter.setPen(kRulerInk);
        paintLetters(painter, QPointF(x + 0.5, top + kRulerLetters), kRulerLetters, 20,
                     QString::number(column));
    }
}

}  // namespace

void paintDesign(QPainter& painter, const FormDesign& form, double left) {
    painter.save();
    for (const FormBox& box : form.boxes) {
        paintBox(painter, box, left);
    }
    painter.setPen(kFormInk);
    for (const FormText& text : form.texts) {
        const QPointF at(left + static_cast<double>(text.x) * kPointsPerUnit,
                         static_cast<double>(text.y) * kPointsPerUnit + kFormTextBaseline);
        paintLetters(painter, at, kFormText, 2000, QString::fromStdString(text.text));
    }
    painter.restore();
}

void paintPicture(QPainter& painter, const QImage& picture, const QRectF& sheet) {
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(sheet, picture);
    painter.restore();
}

void paintRuler(QPainter& painter, const FormPage& page, PaperUnits cell, double left,
                double right) {
    painter.save();
    const auto pointsDown = [&page](PaperUnits y) {
        return static_cast<double>(y - page.shape.top) * kPointsPerUnit;
    };
    const double bottom = pointsDown(page.shape.top + page.shape.height);
    const int rows = static_cast<int>(page.shape.height / kLine);
    painter.setPen(kRulerInk);
    for (int row = 1; row <= rows; ++row) {
        paintLetters(painter, QPointF(left - 7, (row - 1) * 12.0 + 8.0), kRulerLetters, 8,
                     QString::number(row));
    }
    // From each change of pitch to the next.
    PaperUnits present = page.lines.empty() ? cell : cellOf(page.lines.front(), cell);
    double top = 0;
    for (const PaperLine& line : page.lines) {
        const PaperUnits next = cellOf(line, present);
        if (next != present) {
            paintColumns(painter, present, top, pointsDown(line.y), left, right);
            present = next;
            top = pointsDown(line.y);
        }
    }
    paintColumns(painter, present, top, bottom, left, right);
    painter.restore();
}

}  // namespace tarn::dotmatrix
