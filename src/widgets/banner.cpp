#include "widgets/banner.h"

#include <QFontMetrics>
#include <QPainter>
#ifdef TARN_PICTURE_SIDES
#include <QPixmap>
#else
#include <QSvgRenderer>
#endif

namespace tarn {
namespace {

#ifdef TARN_PICTURE_SIDES

void drawAt(QPainter& painter, int height) {
    const QPixmap drawing(QStringLiteral(":/desk/banner-192.png"));
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(
        QRectF(0, 0, static_cast<double>(drawing.width()) * height / drawing.height(), height),
        drawing, drawing.rect());
}

#else

void drawAt(QPainter& painter, int height) {
    QSvgRenderer drawing(QStringLiteral(":/desk/banner.svg"));
    const QSizeF natural = drawing.defaultSize();
    drawing.render(&painter, QRectF(0, 0, natural.width() * height / natural.height(), height));
}

#endif

}  // namespace

Banner::Banner(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize Banner::sizeHint() const {
    const int height = fontMetrics().height() * 3;
    return {height * 10, height};
}

// The ground goes over the whole width; the drawing keeps its proportions at the left.
void Banner::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    QLinearGradient ground(0, 0, width(), 0);
    ground.setColorAt(0, palette().color(QPalette::Highlight));
    ground.setColorAt(1, palette().color(QPalette::Highlight).darker(160));
    painter.fillRect(rect(), ground);
    drawAt(painter, height());
}

}  // namespace tarn
