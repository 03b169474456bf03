#include "dotmatrix/paper_fonts.h"

#include <QFontMetricsF>
#include <QString>

namespace tarn::dotmatrix {

namespace {

// Scaled to the cell from this size: large enough for exact advances, and not past the
// size up to which the font engine keeps its glyphs (four times the speed).
constexpr int printPixels = 64;
constexpr int formPixels = 48;  // scaled down from it, for sharp small letters

}  // namespace

PrintFont::PrintFont() {
    plain_.setFamilies({QStringLiteral("Liberation Mono"), QStringLiteral("DejaVu Sans Mono"),
                        QStringLiteral("Courier New"), QStringLiteral("monospace")});
    plain_.setStyleHint(QFont::Monospace);
    plain_.setPixelSize(printPixels);
    plain_.setHintingPreference(QFont::PreferNoHinting);
    plain_.setKerning(false);
    constexpr int measured = 64;
    advance_ =
        QFontMetricsF(plain_).horizontalAdvance(QString(measured, QLatin1Char('0'))) / measured;
}

QFont PrintFont::face(bool bold, bool italic) const {
    QFont font = plain_;
    if (bold || italic) {
        font.setBold(bold);
        font.setItalic(italic);
    }
    return font;
}

QFont formFont() {
    QFont font;
    font.setFamilies({QStringLiteral("Liberation Sans"), QStringLiteral("DejaVu Sans"),
                      QStringLiteral("Arial"), QStringLiteral("sans-serif")});
    font.setPixelSize(formPixels);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

}  // namespace tarn::dotmatrix
