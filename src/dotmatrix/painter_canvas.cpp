#include "dotmatrix/painter_canvas.h"

#include <QPainter>

namespace tarn::dotmatrix {

namespace {

QPen penOf(const Stroke& stroke) {
    QPen pen(stroke.colour, stroke.width);
    if (stroke.dashed) {
        pen.setDashPattern({dashWidths, dashWidths});
    }
    return pen;
}

}  // namespace

void PainterCanvas::fill(const QRectF& area, const QColor& colour) {
    painter_.fillRect(area, colour);
}

void PainterCanvas::frame(const QRectF& area, const Stroke& stroke) {
    painter_.setPen(penOf(stroke));
    painter_.setBrush(Qt::NoBrush);
    painter_.drawRect(area);
}

void PainterCanvas::disc(const QPointF& centre, double radius, const QColor& filling,
                         const Stroke& edge) {
    painter_.setPen(penOf(edge));
    painter_.setBrush(filling);
    painter_.drawEllipse(centre, radius, radius);
}

void PainterCanvas::line(const QPointF& from, const QPointF& to, const Stroke& stroke) {
    painter_.setPen(penOf(stroke));
    painter_.drawLine(from, to);
}

void PainterCanvas::picture(const QRectF& area, const QImage& image) {
    const bool smooth = painter_.testRenderHint(QPainter::SmoothPixmapTransform);
    painter_.setRenderHint(QPainter::SmoothPixmapTransform);
    painter_.drawImage(area, image);
    painter_.setRenderHint(QPainter::SmoothPixmapTransform, smooth);
}

void PainterCanvas::words(const Words& words) {
    painter_.save();
    painter_.setPen(words.colour);
    painter_.setFont(words.font);
    painter_.translate(words.at);
    painter_.rotate(words.turn);
    painter_.scale(words.scale, words.scale);
    painter_.drawText(QPointF(0, 0), words.text);
    painter_.restore();
}

void PainterCanvas::run(const PrintedRun& run) {
    painter_.save();
    painter_.setPen(printInk);
    painter_.setFont(print_.face(run.bold, run.italic));
    painter_.translate(run.at);
    painter_.scale(run.cell / print_.advance(), printEm / print_.pixels());
    painter_.drawText(QPointF(0, 0), run.text);
    painter_.restore();
}

void PainterCanvas::background(double /*width*/, PaperUnits /*height*/,
                               const std::shared_ptr<const FormDesign>& /*form*/,
                               const std::function<void()>& draw) {
    draw();
}

}  // namespace tarn::dotmatrix
