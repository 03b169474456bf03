#include "apps/tarnroteiro/photo.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QScreen>
#include <QTest>

namespace tarn {
namespace {

constexpr int lookMs = 150;
constexpr int mostLooks = 20;

QPixmap ofScreen(const QRect& place) {
    QScreen* const screen = QGuiApplication::primaryScreen();
    QPixmap photo;
    QImage before;
    for (int look = 0; look < mostLooks; ++look) {
        QTest::qWait(lookMs);
        photo = screen->grabWindow(0, place.x(), place.y(), place.width(), place.height());
        QImage now = photo.toImage();
        if (now == before) {
            break;
        }
        before = std::move(now);
    }
    return photo;
}

QPixmap composed(QWidget& window, QWidget& desk) {
    QPixmap photo = desk.grab();
    if (window.isWindow()) {
        const QPoint place = window.geometry().topLeft() - desk.geometry().topLeft();
        QPainter painter(&photo);
        painter.drawPixmap(place, window.grab());
        painter.setPen(Qt::darkGray);
        painter.drawRect(QRect(place, window.size()).adjusted(-1, -1, 0, 0));
    }
    return photo;
}

}  // namespace

QPixmap photoOf(QWidget& window, QWidget* desk) {
    const bool isBehind = desk != nullptr && desk != &window;
    if (QGuiApplication::platformName() == QStringLiteral("xcb")) {
        const QRect place = window.window()->frameGeometry();
        return ofScreen(isBehind ? place.united(desk->frameGeometry()) : place);
    }
    return isBehind ? composed(window, *desk) : window.grab();
}

}  // namespace tarn
