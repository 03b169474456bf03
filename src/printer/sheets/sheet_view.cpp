#include "printer/sheets/sheet_view.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "dotmatrix/paper_canvas.h"
#include "printer/view_looks.h"

namespace tarn::dotmatrix {

namespace {

constexpr int gap = 10;  // pixels around a sheet
constexpr int wheelRows = 20;
constexpr qsizetype mostPictureBytes = 192LL * 1024 * 1024;
const QColor captionInk(40, 48, 50);
const QColor sheetEdge(140, 146, 146);
const QColor waitingInk(110, 110, 110);

}  // namespace

int SheetView::Row::bottom() const {
    return top + caption + size.height() + gap;
}

SheetView::SheetView(SheetPile& pile, const PdfPrograms& programs, QWidget* parent)
    : QAbstractScrollArea(parent), pile_(pile), painter_(programs.paint) {
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(QStringLiteral("Folhas soltas"));
    verticalScrollBar()->setSingleStep(wheelRows);
    horizontalScrollBar()->setSingleStep(wheelRows);
    connect(&pile_, &SheetPile::changed, this, &SheetView::relay);
    connect(&painter_, &SheetPainter::painted, this, &SheetView::keep);
    connect(verticalScrollBar(), &QScrollBar::actionTriggered, this, [this] {
        follows_ = verticalScrollBar()->sliderPosition() == verticalScrollBar()->maximum();
    });
    connect(verticalScrollBar(), &QScrollBar::valueChanged, &reading_, qOverload<>(&QTimer::start));
    reading_.setSingleShot(true);
    reading_.setInterval(untilReadOut);
    connect(&reading_, &QTimer::timeout, this, &SheetView::readOut);
}

void SheetView::setStory(std::function<QString(const SheetFile&)> story) {
    story_ = std::move(story);
    relay();
}

void SheetView::setZoom(double zoom) {
    if (zoom != zoom_) {
        const auto before = place();
        zoom_ = zoom;
        layOutAround(before);
    }
}

void SheetView::follow(const QString& name) {
    following_ = name;
    if (follows_) {
        showSheet(name, 1);
    }
}

void SheetView::showSheet(const QString& name, int page) {
    for (const SheetFile& file : pile_.files()) {
        if (file.name == name) {
            goTo({file.path, page, 0});
        }
    }
}

// The sheets change: what is looked at stays where it is.
void SheetView::relay() {
    const auto before = place();
    layOut();
    dropOld();
    if (follows_ && following_) {
        showSheet(*following_, 1);
    } else if (before) {
        goTo(*before);
    }
    reading_.start();
}

// What was looked at before stays where it is.
void SheetView::layOutAround(const std::optional<Place>& before) {
    layOut();
    if (before) {
        goTo(*before);
    }
}

void SheetView::layOut() {
    rows_.clear();
    for (std::size_t file = 0; file < pile_.files().size(); ++file) {
        addRows(file);
    }
    int width = 0;
    for (const Row& row : rows_) {
        width = std::max(width, row.size.width() + 2 * gap);
    }
    const int height = rows_.empty() ? 0 : rows_.back().bottom();
    verticalScrollBar()->setRange(0, std::max(0, height - viewport()->height()));
    verticalScrollBar()->setPageStep(std::max(1, viewport()->height()));
    horizontalScrollBar()->setRange(0, std::max(0, width - viewport()->width()));
    horizontalScrollBar()->setPageStep(viewport()->width());
    viewport()->update();
}

void SheetView::addRows(std::size_t file) {
    const std::vector<QSizeF>& pages = pile_.files()[file].pages;
    const int oneLine = fontMetrics().height() + gap;
    for (std::size_t page = pages.empty() ? 0 : 1; page <= pages.size(); ++page) {
        Row row{.file = file,
                .path = pile_.files()[file].path,
                .page = static_cast<int>(page),
                .top = rows_.empty() ? 0 : rows_.back().bottom(),
                .caption = oneLine};
        if (page > 0) {
            row.size = (pages[page - 1] * (zoom_ * screenDots / pointsPerInch)).toSize();
        }
        if (page <= 1) {  // these captions are long
            const QRect room(0, 0, std::max(1, viewport()->width() - 2 * gap), 0);
            row.caption = fontMetrics()
                              .boundingRect(room, Qt::TextWordWrap | Qt::AlignLeft, captionOf(row))
                              .height() +
                          gap;
        }
        rows_.push_back(row);
    }
}

QString SheetView::captionOf(const Row& row) const {
    const SheetFile& file = pile_.files()[row.file];
    QString text;
    if (row.page <= 1) {
        text = file.name + (story_ ? story_(file) : QString());
    }
    if (row.page == 0) {
        return text + QStringLiteral("\n") + file.remark;
    }
    if (file.pages.size() > 1) {
        text += (text.isEmpty() ? QString() : QStringLiteral(" · ")) +
                QStringLiteral("página %1 de %2").arg(row.page).arg(file.pages.size());
    }
    return text;
}

std::size_t SheetView::rowAt(int y) const {
    const auto row = std::partition_point(rows_.begin(), rows_.end(),
                                          [y](const Row& one) { return one.bottom() <= y; });
    return static_cast<std::size_t>(row - rows_.begin());
}

std::optional<SheetView::Place> SheetView::place() const {
    const std::size_t at = rowAt(verticalScrollBar()->value());
    if (at >= rows_.size()) {
        return std::nullopt;
    }
    const Row& row = rows_[at];
    return Place{
        row.path, row.page,
        static_cast<double>(verticalScrollBar()->value() - row.top) / (row.bottom() - row.top)};
}

void SheetView::goTo(const Place& place) {
    for (const Row& row : rows_) {
        if (row.path == place.path && (row.page == place.page || row.page == 0)) {
            const double above = place.share * (row.bottom() - row.top);
            verticalScrollBar()->setValue(row.top + static_cast<int>(std::lround(above)));
            return;
        }
    }
}

QString SheetView::presentSheet() const {
    const std::size_t at = rowAt(verticalScrollBar()->value());
    if (at >= rows_.size()) {
        return {};
    }
    const SheetFile& file = pile_.files()[rows_[at].file];
    return rows_[at].page == 0 ? QStringLiteral("%1: %2").arg(file.name, file.remark)
                               : QStringLiteral("%1, página %2 de %3")
                                     .arg(file.name)
                                     .arg(rows_[at].page)
                                     .arg(file.pages.size());
}

void SheetView::readOut() {
    setAccessibleDescription(presentSheet());
}

QRect SheetView::pageRect(const Row& row) const {
    const int spare = viewport()->width() - row.size.width();
    const int left = spare >= 2 * gap ? spare / 2 : gap - horizontalScrollBar()->value();
    return {QPoint(left, row.top + row.caption - verticalScrollBar()->value()), row.size};
}

void SheetView::paintEvent(QPaintEvent* /*event*/) {
    ++paintings_;
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), QColor(deskColour));
    const int bottom = verticalScrollBar()->value() + viewport()->height();
    for (std::size_t row = rowAt(verticalScrollBar()->value());
         row < rows_.size() && rows_[row].top < bottom; ++row) {
        paintRow(painter, rows_[row]);
    }
    if (rows_.empty()) {
        painter.setPen(captionInk);
        painter.drawText(viewport()->rect().adjusted(gap, gap, -gap, -gap),
                         Qt::TextWordWrap | Qt::AlignHCenter | Qt::AlignTop,
                         QStringLiteral("Nenhuma folha: as duplicatas, os recibos e as outras "
                                        "páginas desenhadas aparecem aqui."));
    }
    drawNext();
}

void SheetView::paintRow(QPainter& painter, const Row& row) {
    const QRect caption(gap, row.top + gap / 2 - verticalScrollBar()->value(),
                        viewport()->width() - 2 * gap, row.caption);
    painter.setPen(captionInk);
    painter.drawText(caption, Qt::TextWordWrap | Qt::AlignLeft, captionOf(row));
    if (row.page > 0) {
        paintPage(painter, row, pageRect(row));
    }
}

void SheetView::paintPage(QPainter& painter, const Row& row, const QRect& rect) {
    painter.fillRect(rect, Qt::white);
    const auto held = pictures_.find({row.path, row.page});
    if (held != pictures_.end()) {
        held->second.seen = paintings_;
    }
    if (held != pictures_.end() && !held->second.image.isNull()) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(rect, held->second.image);
    } else {
        painter.setPen(waitingInk);
        painter.drawText(rect, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap,
                         held == pictures_.end()
                             ? QStringLiteral("\nDesenhando...")
                             : QStringLiteral("\nEsta página não pôde ser desenhada. Se nenhuma "
                                              "aparece, falta nesta máquina o programa pdftoppm: "
                                              "instale o pacote poppler-utils."));
    }
    painter.setPen(sheetEdge);
    painter.drawRect(rect.adjusted(0, 0, -1, -1));
}

SheetWanted SheetView::wantedOf(const Row& row) const {
    const SheetFile& file = pile_.files()[row.file];
    const double dots = screenDots * zoom_ * devicePixelRatioF();
    return {.path = file.path,
            .page = row.page,
            .version = file.version,
            .dots = SheetPainter::bearableDots(dots,
                                               file.pages[static_cast<std::size_t>(row.page - 1)])};
}

std::optional<SheetWanted> SheetView::firstMissing() const {
    const int bottom = verticalScrollBar()->value() + viewport()->height();
    for (std::size_t at = rowAt(verticalScrollBar()->value());
         at < rows_.size() && rows_[at].top < bottom; ++at) {
        if (rows_[at].page == 0 || !pile_.files()[rows_[at].file].isRead) {
            continue;  // it is drawn when it has come to rest
        }
        const SheetWanted wanted = wantedOf(rows_[at]);
        const auto held = pictures_.find({wanted.path, wanted.page});
        if (held == pictures_.end() || held->second.version != wanted.version ||
            (held->second.dots != wanted.dots && !held->second.image.isNull())) {
            return wanted;
        }
    }
    return std::nullopt;
}

bool SheetView::isDrawn() const {
    return !painter_.isBusy() && !firstMissing();
}

void SheetView::drawNext() {
    if (!painter_.isBusy() && isVisible()) {
        if (const auto wanted = firstMissing()) {
            painter_.paint(*wanted);
        }
    }
}

void SheetView::keep(const SheetWanted& wanted, const QImage& image) {
    pictures_[{wanted.path, wanted.page}] = {image, wanted.dots, wanted.version, paintings_};
    dropOld();
    viewport()->update();
    drawNext();
}

// The pictures looked at longest ago go, and those of files that have gone.
void SheetView::dropOld() {
    std::erase_if(pictures_, [this](const auto& entry) {
        return std::none_of(pile_.files().begin(), pile_.files().end(),
                            [&](const SheetFile& file) { return file.path == entry.first.first; });
    });
    qsizetype bytes = 0;
    for (const auto& [key, picture] : pictures_) {
        bytes += picture.image.sizeInBytes();
    }
    while (bytes > mostPictureBytes) {
        const auto oldest = std::min_element(
            pictures_.begin(), pictures_.end(),
            [](const auto& a, const auto& b) { return a.second.seen < b.second.seen; });
        if (oldest->second.seen == paintings_) {
            return;  // all of them are in sight
        }
        bytes -= oldest->second.image.sizeInBytes();
        pictures_.erase(oldest);
    }
}

void SheetView::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    layOutAround(place());
}

void SheetView::mousePressEvent(QMouseEvent* event) {
    const std::size_t at = rowAt(verticalScrollBar()->value() + qRound(event->position().y()));
    if (event->button() == Qt::LeftButton && at < rows_.size()) {
        emit sheetClicked(pile_.files()[rows_[at].file].name);
    }
}

void SheetView::wheelEvent(QWheelEvent* event) {
    if ((event->modifiers() & Qt::ControlModifier) == 0) {
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    emit zoomTurned(event->angleDelta().y() > 0);
    event->accept();
}

void SheetView::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Home:
            verticalScrollBar()->triggerAction(QAbstractSlider::SliderToMinimum);
            break;
        case Qt::Key_End:
            verticalScrollBar()->triggerAction(QAbstractSlider::SliderToMaximum);
            break;
        default:
            QAbstractScrollArea::keyPressEvent(event);
            break;
    }
}

}  // namespace tarn::dotmatrix
