#include "widgets/desk_palette.h"

#include <QApplication>
#include <QToolTip>

namespace tarn {
namespace {

constexpr QRgb accent = 0xff1f6f78;
constexpr QRgb paper = 0xfff4f6f6;
constexpr QRgb face = 0xffe4e9e9;
constexpr QRgb ink = 0xff1d2b2e;
constexpr QRgb faded = 0xff566365;  // still to be read: 4,5 times as light or dark as its ground
constexpr QRgb visited = 0xff5a4a78;

}  // namespace

QPalette deskPalette() {
    QPalette palette(QColor::fromRgb(face), QColor::fromRgb(paper));
    palette.setColor(QPalette::WindowText, QColor::fromRgb(ink));
    palette.setColor(QPalette::Text, QColor::fromRgb(ink));
    palette.setColor(QPalette::ButtonText, QColor::fromRgb(ink));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor::fromRgb(0xffeef3f3));
    palette.setColor(QPalette::Mid, QColor::fromRgb(0xffc3cfcf));
    palette.setColor(QPalette::Highlight, QColor::fromRgb(accent));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, Qt::white);
    palette.setColor(QPalette::ToolTipText, QColor::fromRgb(ink));
    palette.setColor(QPalette::PlaceholderText, QColor::fromRgb(faded));
    palette.setColor(QPalette::Link, QColor::fromRgb(accent));
    palette.setColor(QPalette::LinkVisited, QColor::fromRgb(visited));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, QColor::fromRgb(faded));
    }
    // What is disabled still shows what is chosen.
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor::fromRgb(faded));
    palette.setColor(QPalette::Disabled, QPalette::Base, QColor::fromRgb(paper));
    return palette;
}

void replacePalettes() {
    const QPalette palette = deskPalette();
    QApplication::setPalette(palette);  // drops those of single kinds
    QToolTip::setPalette(palette);
}

}  // namespace tarn
