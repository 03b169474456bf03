#include "dotmatrix/form_painter.h"

#include <QFontMetricsF>
#include <algorithm>

#include "dotmatrix/paper_canvas.h"
#include "dotmatrix/paper_fonts.h"

namespace tarn::dotmatrix {

namespace {

// Needles strike from 1.9 to 10.9 points below the top of a row: a box drawn a point
// higher holds them, and a label of the smallest size stays clear of capitals.
constexpr double boxRise = 1.0;
constexpr double roomyLabel = 7.0;       // 9 pixels on a screen of true size
constexpr double leastRoomyLabel = 5.0;  // of words that are long for their box
constexpr double tightLabel = 3.0;
constexpr double boxLine = 0.4;

constexpr double formText = 9.0;
constexpr double formTextBaseline = 8.9;
constexpr double rulerLetters = 4.0;

const QColor formInk(52, 116, 138);
const QColor rulerInk(196, 84, 40);
const QColor guide(196, 84, 40, 70);

// One text of `points` height with its baseline at `at`, cut to `width`.
void paintLetters(PaperCanvas& canvas, const QPointF& at, double points, double width,
                  const QColor& colour, const QString& text) {
    if (text.isEmpty()) {
        return;
    }
    const QFont font = formFont();
    const double scale = points / font.pixelSize();
    const QString shown = QFontMetricsF(font).elidedText(text, Qt::ElideRight, width / scale);
    if (shown == QStringLiteral("\u2026")) {
        return;  // no room for a single letter
    }
    canvas.words(
        {.at = at, .turn = 0, .scale = scale, .font = font, .colour = colour, .text = shown});
}

// The height of letters of which all have room.
double pointsToFit(const QString& words, double width) {
    const QFont font = formFont();
    const double advance = QFontMetricsF(font).horizontalAdvance(words);
    constexpr double spare = 0.99;
    return advance > 0 ? spare * width / advance * font.pixelSize() : roomyLabel;
}

void paintBox(PaperCanvas& canvas, const FormBox& box, double left) {
    const QRectF frame(left + static_cast<double>(box.x) * pointsPerUnit,
                       static_cast<double>(box.y) * pointsPerUnit - boxRise,
                       static_cast<double>(box.width) * pointsPerUnit,
                       static_cast<double>(box.height) * pointsPerUnit);
    canvas.frame(frame, {.colour = formInk, .width = boxLine});
    // With half a line to spare the words are above the print.
    const bool roomy = box.height % lineHeight != 0;
    const QString words = QString::fromStdString(box.label);
    const double room = frame.width() - 1.5;
    const double points =
        roomy ? std::clamp(pointsToFit(words, room), leastRoomyLabel, roomyLabel) : tightLabel;
    paintLetters(canvas, frame.topLeft() + QPointF(1.0, points * 0.95), points, room, formInk,
                 words);
}

PaperUnits cellOf(const PaperLine& line, PaperUnits otherwise) {
    return line.cells.empty() ? otherwise : line.cells.front().width;
}

// Marks from `top` to `bottom` for cells of this width.
void paintColumns(PaperCanvas& canvas, PaperUnits cell, double top, double bottom, double left,
                  double right) {
    const double step = static_cast<double>(cell) * pointsPerUnit;
    for (int column = 10; left + (column - 1) * step < right; column += 10) {
        const double x = left + (column - 0.5) * step;
        canvas.line(QPointF(x, top), QPointF(x, bottom), {.colour = guide, .width = 0.3});
        paintLetters(canvas, QPointF(x + 0.5, top + rulerLetters), rulerLetters, 20, rulerInk,
                     QString::number(column));
    }
}

}  // namespace

void paintDesign(PaperCanvas& canvas, const FormDesign& form, double left) {
    for (const FormBox& box : form.boxes) {
        paintBox(canvas, box, left);
    }
    for (const FormText& text : form.texts) {
        const QPointF at(left + static_cast<double>(text.x) * pointsPerUnit,
                         static_cast<double>(text.y) * pointsPerUnit + formTextBaseline);
        paintLetters(canvas, at, formText, 2000, formInk, QString::fromStdString(text.text));
    }
}

void paintRuler(PaperCanvas& canvas, const FormPage& page, PaperUnits cell, double left,
                double right) {
    const auto pointsDown = [&page](PaperUnits y) {
        return static_cast<double>(y - page.shape.top) * pointsPerUnit;
    };
    const double bottom = pointsDown(page.shape.top + page.shape.height);
    const int rows = static_cast<int>(page.shape.height / lineHeight);
    for (int row = 1; row <= rows; ++row) {
        paintLetters(canvas, QPointF(left - 7, (row - 1) * 12.0 + 8.0), rulerLetters, 8, rulerInk,
                     QString::number(row));
    }
    // From each change of pitch to the next.
    PaperUnits present = page.lines.empty() ? cell : cellOf(page.lines.front(), cell);
    double top = 0;
    for (const PaperLine& line : page.lines) {
        const PaperUnits next = cellOf(line, present);
        if (next != present) {
            paintColumns(canvas, present, top, pointsDown(line.y), left, right);
            present = next;
            top = pointsDown(line.y);
        }
    }
    paintColumns(canvas, present, top, bottom, left, right);
}

}  // namespace tarn::dotmatrix
