#include "widgets/late_icon.h"

#include <QIconEngine>
#include <QPainter>
#include <utility>

namespace tarn {
namespace {

class LateIcon : public QIconEngine {
public:
    explicit LateIcon(std::function<QIcon()> make) : make_(std::move(make)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
               QIcon::State state) override {
        icon().paint(painter, rect, Qt::AlignCenter, mode, state);
    }
    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return icon().actualSize(size, mode, state);
    }
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override {
        return icon().availableSizes(mode, state);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return scaledPixmap(size, mode, state, 1);
    }
    // `size` in the pixels of a screen that has `scale` of them to a point.
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state,
                         qreal scale) override {
        return icon().pixmap(size / scale, scale, mode, state);
    }
    QIconEngine* clone() const override { return new LateIcon(*this); }

private:
    const QIcon& icon() {
        if (icon_.isNull() && make_) {
            icon_ = std::exchange(make_, nullptr)();
        }
        return icon_;
    }

    std::function<QIcon()> make_;
    QIcon icon_;
};

}  // namespace

QIcon lateIcon(std::function<QIcon()> make) {
    return QIcon(new LateIcon(std::move(make)));
}

}  // namespace tarn
