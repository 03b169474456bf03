#include "platform/qt/page_canvas.h"

#include <QFontDatabase>
#include <array>

namespace tarn {
namespace {

struct Substitute {
    const char* wanted;
    const char* face;
};

// Faces with the same widths, for machines without the wanted ones.
constexpr std::array substitutes{Substitute{"Arial", "Liberation Sans"},
                                 Substitute{"Courier New", "Liberation Mono"},
                                 Substitute{"Times New Roman", "Liberation Serif"}};

QString faceFor(const std::string& wanted) {
    QString family = QString::fromStdString(wanted);
    if (QFontDatabase::hasFamily(family)) {
        return family;
    }
    for (const Substitute& substitute : substitutes) {
        QString face = QString::fromLatin1(substitute.face);
        if (wanted == substitute.wanted && QFontDatabase::hasFamily(face)) {
            return face;
        }
    }
    return family;
}

}  // namespace

QFont fontOf(const DrawnText& text) {
    QFont font(faceFor(text.font));
    font.setPointSizeF(text.size);
    font.setBold(text.bold);
    font.setKerning(false);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

}  // namespace tarn
