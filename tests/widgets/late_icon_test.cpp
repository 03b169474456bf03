#include "widgets/late_icon.h"

#include <gtest/gtest.h>

#include <QPainter>

namespace tarn::test {
namespace {

QIcon redSquare() {
    QPixmap pixmap(32, 32);
    pixmap.fill(Qt::red);
    return QIcon(pixmap);
}

TEST(LateIcon, IsMadeOnceAndOnlyWhenItIsDrawn) {
    int made = 0;
    const QIcon icon = lateIcon([&made] {
        ++made;
        return redSquare();
    });
    EXPECT_FALSE(icon.isNull());
    EXPECT_EQ(made, 0);
    EXPECT_EQ(icon.pixmap(16).toImage().pixelColor(8, 8), QColor(Qt::red));
    EXPECT_EQ(icon.pixmap(16).toImage().pixelColor(8, 8), QColor(Qt::red));
    EXPECT_EQ(made, 1);
}

TEST(LateIcon, IsDrawnAsTheOneItStandsFor) {
    const QIcon icon = lateIcon(redSquare);
    const QIcon real = redSquare();
    EXPECT_EQ(icon.availableSizes(), real.availableSizes());
    for (const QSize size : {QSize(16, 16), QSize(32, 32), QSize(64, 64)}) {
        EXPECT_EQ(icon.actualSize(size), real.actualSize(size));
        for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Disabled, QIcon::Selected}) {
            for (const qreal scale : {1.0, 2.0}) {
                const QPixmap pixmap = icon.pixmap(size, scale, mode);
                EXPECT_EQ(pixmap.toImage(), real.pixmap(size, scale, mode).toImage());
                EXPECT_EQ(pixmap.devicePixelRatio(),
                          real.pixmap(size, scale, mode).devicePixelRatio());
            }
        }
    }
}

}  // namespace
}  // namespace tarn::test
