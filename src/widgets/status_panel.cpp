#include "widgets/status_panel.h"

#include <QEvent>
#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace tarn {

StatusPanel::StatusPanel(const char* name, const QString& what, QWidget* parent) : QLabel(parent) {
    setObjectName(QLatin1StringView(name));
    setAccessibleDescription(what);
    setTextFormat(Qt::PlainText);
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setMargin(2);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

QSize StatusPanel::minimumSizeHint() const {
    return {0, QLabel::minimumSizeHint().height()};
}

QRect StatusPanel::textRect() const {
    return contentsRect().adjusted(margin(), margin(), -margin(), -margin());
}

bool StatusPanel::isCut() const {
    return fontMetrics().horizontalAdvance(text()) > textRect().width();
}

// A text that looks like markup must not become it.
bool StatusPanel::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) {
        return QLabel::event(event);
    }
    const QString whole =
        isCut() ? Qt::convertFromPlainText(text(), Qt::WhiteSpaceNormal) : QString();
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), whole, this);
    return true;
}

void StatusPanel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    drawFrame(&painter);
    const QRect place = textRect();
    style()->drawItemText(&painter, place, Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(),
                          fontMetrics().elidedText(text(), Qt::ElideRight, place.width()),
                          foregroundRole());
}

}  // namespace tarn
