// The strip of paper on the screen. Only what is seen is printed again and painted.
#pragma once

#include <QAbstractScrollArea>
#include <QTimer>
#include <optional>
#include <vector>

#include "dotmatrix/paper_painter.h"
#include "printer/paper/paper_region.h"

namespace tarn::dotmatrix {

// What lies under the mouse.
struct PaperSpot {
    std::size_t form = 0;    // from 0
    std::size_t line = 0;    // of the form, from 1
    std::size_t column = 0;  // from 1, 0 outside the print
    QString box{};           // words of the box that is there; empty for none
};

class PaperView : public QAbstractScrollArea {
    Q_OBJECT

public:
    static constexpr double leastZoom = 0.25;
    static constexpr double mostZoom = 4.0;

    // `roll` must outlive this.
    explicit PaperView(PaperRoll& roll, QWidget* parent = nullptr);

    void setOptions(const PaintOptions& options);
    // 1 is true size on a screen of 96 dots an inch.
    double zoom() const { return zoom_; }
    void setZoom(double zoom);
    // As one notch of the wheel does.
    void zoomStep(bool larger);
    void fitWidth();

    // The roll has changed. Until the user looks elsewhere the view follows the print:
    // the last job from its beginning, or its end where it is longer than the window.
    void refresh();
    void showTop(PaperUnits y);
    // Scrolls only if it isn't in sight.
    void reveal(const PaperRegion& region);
    // y at the upper edge of the window.
    PaperUnits topY() const;
    // The one that is looked at.
    std::size_t presentForm() const;
    bool isFollowing() const { return following_; }
    // To the print, and with it from now on.
    void followPrint();
    // Forms of the paper that never were in sight.
    std::size_t unseenForms() const;
    // The paper is another one: none of it was seen.
    void forgetSeen() { seen_.clear(); }

    const std::optional<PaperRegion>& selection() const { return selection_; }
    void select(const std::optional<PaperRegion>& region);
    void mark(const std::optional<PaperRegion>& found);
    // What the paper shows cut or outside its boxes is coloured.
    void showFaults(bool on);

signals:
    void zoomed();
    void looked();  // at another piece of the paper
    void selected(bool any);
    void hovered(const tarn::dotmatrix::PaperSpot& spot);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    struct Point {
        PaperUnits x = 0;
        PaperUnits y = 0;
    };
    double scale() const;  // pixels for each unit
    double leftEdge() const;
    PaperUnits eyes() const;  // from the upper edge of the window down
    void setRanges();
    void follow();
    void noteSeen(std::size_t first, std::size_t last);
    void readOut();
    Point pointAt(const QPointF& pixel) const;
    QRectF pixelsOf(const PaperRegion& region) const;
    PaperSpot spotAt(const Point& point);
    void paintFaults(QPainter& painter, const FormPage& page) const;

    PaperRoll& roll_;
    PaintOptions options_;
    PaperPainter painter_;
    Sheet widest_;  // of all papers; they lie with their left edges above each other
    double zoom_ = 1.0;
    bool following_ = true;
    std::vector<bool> seen_;  // by form
    QTimer reading_;          // a reader hears of the line where the view comes to rest
    std::optional<PaperRegion> selection_;
    std::optional<PaperRegion> found_;
    bool faults_ = false;
    Point pressed_;
};

}  // namespace tarn::dotmatrix
