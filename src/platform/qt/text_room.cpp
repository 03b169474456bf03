#include "platform/qt/text_room.h"

#include <QFont>
#include <QFontMetrics>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

namespace tarn {
namespace {

// Adds up lines as they stand in a text field.
class Ruler {
public:
    Ruler(const QFont& font, QTextOption::WrapMode breaks, const QSize& most, QPaintDevice* device)
        : font_(font),
          most_(most),
          device_(device),
          mostCharacters_(charactersOf(QFontMetrics(font, device), most)) {
        breaks_.setWrapMode(breaks);
    }

    // False when there is no room for it.
    bool takeLine(const QString& text) {
        fits_ = text.size() <= mostCharacters_;
        QTextLayout layout(fits_ ? text : text.first(mostCharacters_), font_, device_);
        layout.setTextOption(breaks_);
        layout.beginLayout();
        int pieces = 0;
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLeadingIncluded(true);
            line.setLineWidth(most_.width());
            width_ = std::max(width_, line.naturalTextWidth());
            height_ += line.height();
            ++pieces;
        }
        layout.endLayout();
        broken_ = broken_ || pieces > 1;
        fits_ = fits_ && height_ <= most_.height();
        return fits_;
    }

    TextRoom room() const {
        const int width = broken_ ? most_.width() : static_cast<int>(std::ceil(width_));
        return {.size = {width, static_cast<int>(std::ceil(height_))},
                .broken = broken_,
                .fits = fits_};
    }

private:
    // No more than these fit, were each a dot wide. Breaking a line takes long where it is.
    static qsizetype charactersOf(const QFontMetrics& metrics, const QSize& most) {
        return qsizetype{most.width()} * (most.height() / metrics.height() + 1);
    }

    QFont font_;
    QSize most_;
    QPaintDevice* device_;
    qsizetype mostCharacters_;
    QTextOption breaks_;
    qreal width_ = 0;
    qreal height_ = 0;
    bool broken_ = false;
    bool fits_ = true;
};

}  // namespace

TextRoom roomOf(const QString& text, const QFont& font, QTextOption::WrapMode breaks,
                const QSize& most, QPaintDevice* device) {
    Ruler ruler(font, breaks, most, device);
    qsizetype start = 0;
    while (start <= text.size()) {
        const qsizetype end = text.indexOf(u'\n', start);
        const qsizetype length = (end < 0 ? text.size() : end) - start;
        if (!ruler.takeLine(text.sliced(start, length))) {
            break;
        }
        start += length + 1;
    }
    return ruler.room();
}

}  // namespace tarn
