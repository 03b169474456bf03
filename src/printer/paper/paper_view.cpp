#include "printer/paper/paper_view.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "printer/paper/paper_check.h"
#include "printer/view_looks.h"

namespace tarn::dotmatrix {

namespace {

constexpr double wheelStep = 1.15;
const QColor fullColour(240, 170, 40, 90);
const QColor faultColour(214, 60, 50, 90);
const QColor selectedColour(31, 111, 120, 60);
const QColor foundColour(255, 196, 0, 110);

PaperUnits stripOf(const Sheet& sheet) {
    return static_cast<PaperUnits>(sheet.strip * static_cast<double>(unitsPerInch));
}

}  // namespace

PaperView::PaperView(PaperRoll& roll, QWidget* parent) : QAbstractScrollArea(parent), roll_(roll) {
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(QStringLiteral("Papel da impressora"));
    viewport()->setMouseTracking(true);
    viewport()->setCursor(Qt::CrossCursor);
    connect(verticalScrollBar(), &QScrollBar::actionTriggered, this, [this] {
        following_ = verticalScrollBar()->sliderPosition() == verticalScrollBar()->maximum();
        emit looked();
    });
    reading_.setSingleShot(true);
    reading_.setInterval(untilReadOut);
    connect(&reading_, &QTimer::timeout, this, &PaperView::readOut);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this] {
        reading_.start();
        emit looked();
    });
    setOptions({});
}

void PaperView::setOptions(const PaintOptions& options) {
    options_ = options;
    painter_ = PaperPainter(options_);
    setRanges();
    viewport()->update();
}

double PaperView::scale() const {
    return zoom_ * screenDots / static_cast<double>(unitsPerInch);
}

double PaperView::leftEdge() const {
    const double width = widest_.width * screenDots * zoom_;
    const double spare = viewport()->width() - width;
    return spare > 0 ? std::floor(spare / 2) : -horizontalScrollBar()->value();
}

// Millions of forms are more pixels than a scroll bar counts, so that it counts lines.
void PaperView::setRanges() {
    widest_ = sheetFor(roll_.contentWidth(), options_);
    const Form last = roll_.forms().back();
    const double lines =
        static_cast<double>(last.top + last.height) / static_cast<double>(lineHeight);
    const double page = viewport()->height() / scale() / static_cast<double>(lineHeight);
    verticalScrollBar()->setRange(0, static_cast<int>(std::ceil(std::max(0.0, lines - page))));
    verticalScrollBar()->setPageStep(std::max(1, static_cast<int>(page)));
    verticalScrollBar()->setSingleStep(1);
    const int width = qRound(widest_.width * screenDots * zoom_);
    horizontalScrollBar()->setRange(0, std::max(0, width - viewport()->width()));
    horizontalScrollBar()->setPageStep(viewport()->width());
    horizontalScrollBar()->setSingleStep(20);
}

PaperUnits PaperView::topY() const {
    return verticalScrollBar()->value() * lineHeight;
}

std::size_t PaperView::presentForm() const {
    return roll_.forms().formAt(topY() + eyes());
}

// In the middle of the window; towards the ends of the paper, which can't be moved there, ever
// nearer to the edge.
PaperUnits PaperView::eyes() const {
    const double window = viewport()->height() / scale();
    const auto above = static_cast<double>(topY());
    const double below = static_cast<double>(verticalScrollBar()->maximum() * lineHeight) - above;
    const double reach = std::min(window, above + below) / 2;
    if (above < reach) {
        return static_cast<PaperUnits>(window / 2 * above / reach);
    }
    if (below < reach) {
        return static_cast<PaperUnits>(window - window / 2 * below / reach);
    }
    return static_cast<PaperUnits>(window / 2);
}

void PaperView::refresh() {
    setRanges();
    if (following_) {
        follow();
    }
    viewport()->update();
    reading_.start();
}

void PaperView::followPrint() {
    following_ = true;
    refresh();
    emit looked();
}

void PaperView::noteSeen(std::size_t first, std::size_t last) {
    if (seen_.size() <= last) {
        seen_.resize(last + 1);
    }
    std::fill(seen_.begin() + static_cast<std::ptrdiff_t>(first),
              seen_.begin() + static_cast<std::ptrdiff_t>(last) + 1, true);
}

std::size_t PaperView::unseenForms() const {
    const std::size_t forms = roll_.jobs().empty() ? 0 : roll_.printedForms();
    const auto known = seen_.begin() + static_cast<std::ptrdiff_t>(std::min(forms, seen_.size()));
    return forms - static_cast<std::size_t>(std::count(seen_.begin(), known, true));
}

// The first printed line in sight is the reader's present line.
void PaperView::readOut() {
    const std::size_t form = roll_.forms().formAt(topY());
    for (const PaperLine& line : roll_.page(form)->lines) {
        if (line.y < topY()) {
            continue;
        }
        const PaperRegion row{0, line.y, roll_.contentWidth(), line.y + lineHeight};
        return setAccessibleDescription(QStringLiteral("formulário %1, linha %2: %3")
                                            .arg(form + 1)
                                            .arg(line.row + 1)
                                            .arg(textIn(roll_, row).simplified()));
    }
    setAccessibleDescription(
        QStringLiteral("formulário %1: nada impresso daqui para baixo").arg(form + 1));
}

void PaperView::follow() {
    const auto height = static_cast<PaperUnits>(viewport()->height() / scale());
    const auto& jobs = roll_.jobs();
    const PaperUnits head = roll_.headY() + 2 * lineHeight;
    const PaperUnits begin = jobs.empty() ? 0 : roll_.forms().at(jobs.back().form).top;
    const PaperUnits top = std::max(begin, head - height);
    verticalScrollBar()->setValue(static_cast<int>((top + lineHeight - 1) / lineHeight));
}

void PaperView::showTop(PaperUnits y) {
    following_ = false;
    verticalScrollBar()->setValue(static_cast<int>(y / lineHeight));
    emit looked();
}

void PaperView::reveal(const PaperRegion& region) {
    const auto height = static_cast<PaperUnits>(viewport()->height() / scale());
    if (region.top < topY() || region.bottom > topY() + height) {
        showTop(std::max<PaperUnits>(0, region.top - height / 3));
    }
    const QRectF pixels = pixelsOf(region);
    if (pixels.left() < 0 || pixels.right() > viewport()->width()) {
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() + qRound(pixels.left()) -
                                        viewport()->width() / 3);
    }
}

void PaperView::setZoom(double zoom) {
    const PaperUnits top = topY();
    zoom_ = std::clamp(zoom, leastZoom, mostZoom);
    setRanges();
    verticalScrollBar()->setValue(static_cast<int>(top / lineHeight));
    viewport()->update();
    emit zoomed();
}

void PaperView::zoomStep(bool larger) {
    setZoom(larger ? zoom_ * wheelStep : zoom_ / wheelStep);
}

void PaperView::fitWidth() {
    const Sheet present = painter_.sheetOf(*roll_.page(presentForm()));
    setZoom(viewport()->width() / (present.width * screenDots));
}

void PaperView::select(const std::optional<PaperRegion>& region) {
    selection_ = region;
    viewport()->update();
    emit selected(selection_.has_value());
}

void PaperView::mark(const std::optional<PaperRegion>& found) {
    found_ = found;
    viewport()->update();
}

PaperView::Point PaperView::pointAt(const QPointF& pixel) const {
    return {static_cast<PaperUnits>((pixel.x() - leftEdge()) / scale()) - stripOf(widest_),
            topY() + static_cast<PaperUnits>(pixel.y() / scale())};
}

QRectF PaperView::pixelsOf(const PaperRegion& region) const {
    const PaperRegion sorted = region.sorted();
    const auto strip = static_cast<double>(stripOf(widest_));
    return {leftEdge() + (static_cast<double>(sorted.left) + strip) * scale(),
            static_cast<double>(sorted.top - topY()) * scale(),
            static_cast<double>(sorted.right - sorted.left) * scale(),
            static_cast<double>(sorted.bottom - sorted.top) * scale()};
}

// The column is counted as the characters of that row were printed, where there are any.
PaperSpot PaperView::spotAt(const Point& point) {
    const std::size_t form = roll_.forms().formAt(point.y);
    const Form shape = roll_.forms().at(form);
    PaperSpot spot{.form = form,
                   .line = static_cast<std::size_t>((point.y - shape.top) / lineHeight + 1),
                   .column = 0};
    if (point.x < 0) {
        return spot;
    }
    const auto page = roll_.page(form);
    PaperUnits cell = options_.rulerCell;
    PaperUnits from = 0;
    std::size_t column = 1;
    for (const PaperLine& line : page->lines) {
        if (line.y > point.y || point.y >= line.y + lineHeight) {
            continue;
        }
        for (const Cell& one : line.cells) {
            if (one.x <= point.x) {
                cell = one.width;
                from = one.x;
                column = one.column;
            }
        }
    }
    spot.column = column + static_cast<std::size_t>((point.x - from) / cell);
    if (const FormDesign* design = designUnder(*page, options_.design.get())) {
        const FormBox* box = boxAt(design->boxes, point.x, point.y - shape.top);
        spot.box = box != nullptr ? QString::fromStdString(box->label) : QString();
    }
    return spot;
}

void PaperView::showFaults(bool on) {
    faults_ = on;
    viewport()->update();
}

void PaperView::paintFaults(QPainter& painter, const FormPage& page) const {
    const auto faults =
        faults_ ? faultsOn(page, options_.design.get(), roll_.jobs()) : std::nullopt;
    for (const PaperFault& fault : faults.value_or(std::vector<PaperFault>())) {
        painter.fillRect(pixelsOf(fault.region),
                         fault.kind == PaperFault::Kind::Full ? fullColour : faultColour);
    }
}

void PaperView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), QColor(deskColour));
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    const double dots = zoom_ * screenDots / pointsPerInch;
    const auto bottom = topY() + static_cast<PaperUnits>(viewport()->height() / scale()) + 1;
    const std::size_t last = roll_.forms().formAt(bottom);
    noteSeen(roll_.forms().formAt(topY()), last);
    for (std::size_t form = roll_.forms().formAt(topY()); form <= last; ++form) {
        const auto page = roll_.page(form);
        const double y = static_cast<double>(page->shape.top - topY()) * scale();
        painter.save();
        painter.translate(leftEdge(), y);
        const double width = painter_.sheetOf(*page).width * pointsPerInch * dots;
        painter.fillRect(QRectF(0, 0, width, static_cast<double>(page->shape.height) * scale()),
                         Qt::white);
        painter.scale(dots, dots);
        painter_.paintForm(painter, *page);
        painter.restore();
        paintFaults(painter, *page);
    }
    if (found_) {
        painter.fillRect(pixelsOf(*found_), foundColour);
    }
    if (selection_) {
        painter.fillRect(pixelsOf(*selection_), selectedColour);
    }
}

void PaperView::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    setRanges();
    emit looked();
}

void PaperView::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        pressed_ = pointAt(event->position());
        select(std::nullopt);
    }
}

void PaperView::mouseMoveEvent(QMouseEvent* event) {
    const Point here = pointAt(event->position());
    if ((event->buttons() & Qt::LeftButton) != 0) {
        const PaperRegion region{pressed_.x, pressed_.y, here.x, here.y};
        select(region.empty() ? std::nullopt : std::optional(region));
    }
    emit hovered(spotAt(here));
}

void PaperView::wheelEvent(QWheelEvent* event) {
    if ((event->modifiers() & Qt::ControlModifier) == 0) {
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    zoomStep(event->angleDelta().y() > 0);
    event->accept();
}

void PaperView::keyPressEvent(QKeyEvent* event) {
    QScrollBar& bar = *verticalScrollBar();
    switch (event->key()) {
        case Qt::Key_Home:
            bar.triggerAction(QAbstractSlider::SliderToMinimum);
            break;
        case Qt::Key_End:
            bar.triggerAction(QAbstractSlider::SliderToMaximum);
            break;
        case Qt::Key_Escape:
            select(std::nullopt);
            break;
        default:
            QAbstractScrollArea::keyPressEvent(event);
            break;
    }
}

}  // namespace tarn::dotmatrix
