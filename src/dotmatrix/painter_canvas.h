// The paper on whatever QPainter draws on: a picture, the window, a printer.
#pragma once

#include "dotmatrix/paper_canvas.h"
#include "dotmatrix/paper_fonts.h"

class QPainter;

namespace tarn::dotmatrix {

// The painter's unit must be the point. Pen, brush and font are left as they come out.
class PainterCanvas : public PaperCanvas {
public:
    // Both must outlive this.
    PainterCanvas(QPainter& painter, const PrintFont& print) : painter_(painter), print_(print) {}

    void fill(const QRectF& area, const QColor& colour) override;
    void frame(const QRectF& area, const Stroke& stroke) override;
    void disc(const QPointF& centre, double radius, const QColor& filling,
              const Stroke& edge) override;
    void line(const QPointF& from, const QPointF& to, const Stroke& stroke) override;
    void picture(const QRectF& area, const QImage& image) override;
    void words(const Words& words) override;
    void run(const PrintedRun& run) override;
    void background(double width, PaperUnits height, const std::shared_ptr<const FormDesign>& form,
                    const std::function<void()>& draw) override;

private:
    QPainter& painter_;
    const PrintFont& print_;
};

}  // namespace tarn::dotmatrix
