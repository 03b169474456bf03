// The room that a plain text takes on the screen.
#pragma once

#include <QSize>
#include <QString>
#include <QTextOption>

class QFont;
class QPaintDevice;

namespace tarn {

struct TextRoom {
    QSize size;           // pixels; as wide as its widest line
    bool broken = false;  // a line was too long; the width is then that of `most`
    bool fits = true;     // false: higher than `most`, and looked at no further
};

// Lines end with LF; those wider than `most` are broken as `breaks` says.
TextRoom roomOf(const QString& text, const QFont& font, QTextOption::WrapMode breaks,
                const QSize& most, QPaintDevice* device);

}  // namespace tarn
