#include "widgets/banner.h"

#include <QFontMetrics>
#include <QPainter>
#include <QSvgRenderer>

namespace tarn {

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
    QSvgRenderer drawing(QStringLiteral(":/desk/banner.svg"));
    const QSizeF natural = drawing.defaultSize();
    drawing.render(&painter, QRectF(0, 0, natural.width() * height() / natural.height(), height()));
}

}  // namespace tarn
