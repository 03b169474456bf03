#include "platform/qt/pdf_pages.h"

#include <QFontMetricsF>
#include <QPaintDevice>
#include <QTextLayout>
#include <QTransform>

namespace tarn {
namespace {

constexpr double pointsPerInch = 72;
constexpr double pointsPerCentimetre = pointsPerInch / centimetresPerInch;
constexpr double pointsPerDot = pointsPerInch / lineDotsPerInch;

// Fonts are measured in its dots, as on a printer.
class LaserDots : public QPaintDevice {
public:
    QPaintEngine* paintEngine() const override { return nullptr; }

protected:
    int metric(PaintDeviceMetric which) const override {
        switch (which) {
            case PdmDpiX:
            case PdmDpiY:
            case PdmPhysicalDpiX:
            case PdmPhysicalDpiY:
                return static_cast<int>(lineDotsPerInch);
            default:
                return QPaintDevice::metric(which);
        }
    }
};

void layOut(QTextLayout& layout) {
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
}

// Points.
double sizeOn(const LaserDots& dots, const QFont& font) {
    QTextLayout layout(QStringLiteral("0"), font, &dots);
    layOut(layout);
    const QList<QGlyphRun> runs = layout.glyphRuns();
    return runs.isEmpty() ? font.pointSizeF() : runs.front().rawFont().pixelSize() * pointsPerDot;
}

QPointF at(double x, double y) {
    return QPointF(x, y) * pointsPerCentimetre;
}

}  // namespace

const PdfTypes::Type& PdfTypes::of(const DrawnText& text) {
    const auto [place, isNew] = types_.try_emplace({text.font, text.size, text.bold});
    Type& type = place->second;
    if (!isNew) {
        return type;
    }
    const QFont font = fontOf(text);
    const LaserDots dots;
    type.ascent = QFontMetricsF(font, &dots).ascent() * pointsPerDot;
    type.size = sizeOn(dots, font);
    const QRawFont raw = QRawFont::fromFont(font);
    pdf::SharedPdfFace& face = faces_[pdf::faceKey(raw)];
    if (!face) {
        face = std::make_shared<const pdf::PdfFace>(raw);
    }
    type.face = face;
    for (char16_t character = u' '; character < charactersEnd; ++character) {
        const QList<quint32> ids = raw.glyphIndexesForString(QChar(character));
        // A soft hyphen has a glyph, but is not to be seen.
        type.glyphs[character] = ids.size() == 1 && character != u'\u00AD' ? ids.front() : 0;
    }
    return type;
}

bool PdfPages::begin() {
    drawing_.beginPage(points_);
    return true;
}

bool PdfPages::newPage() {
    const bool taken = drawing_.endPage();
    drawing_.beginPage(points_);
    return taken;
}

bool PdfPages::end() {
    const QString name = QStringLiteral("TarnEmissao");
    return drawing_.endPage() && drawing_.finish(name, name);
}

// Where each character is a glyph and no two make one.
bool PdfPages::drawSimply(const DrawnText& text, const PdfTypes::Type& type,
                          const QPointF& baseline) {
    pdf::PdfFont*& font = fonts_[&type];
    if (font == nullptr) {
        font = &drawing_.fontOf(type.face);
    }
    const QString characters = QString::fromStdString(text.text);
    piece_.glyphs.clear();
    char16_t before = u' ';
    for (const QChar character : characters) {
        const char16_t unit = character.unicode();
        const quint32 glyph = unit < PdfTypes::charactersEnd ? type.glyphs[unit] : 0;
        if (glyph == 0 || (before == u'f' && (unit == u'f' || unit == u'i' || unit == u'l'))) {
            return false;
        }
        piece_.glyphs.push_back(glyph);
        before = unit;
    }
    if (!font->canBeEmbedded() || characters.isEmpty()) {
        return characters.isEmpty();
    }
    for (qsizetype i = 0; i < characters.size(); ++i) {
        font->use(piece_.glyphs[static_cast<std::size_t>(i)], QStringView(characters).mid(i, 1));
    }
    piece_.font = font;
    piece_.size = type.size;
    piece_.at = baseline;
    drawing_.text(piece_, Qt::black);
    return true;
}

void PdfPages::text(const DrawnText& text) {
    const PdfTypes::Type& type = types_.of(text);
    const QPointF baseline = at(text.x, text.y) + QPointF(0, type.ascent);
    if (!drawSimply(text, type, baseline)) {
        const LaserDots dots;
        QTextLayout layout(QString::fromStdString(text.text), fontOf(text), &dots);
        QTransform place = QTransform::fromTranslate(baseline.x(), baseline.y());
        place.scale(pointsPerDot, pointsPerDot);
        drawing_.words(layout, place, Qt::black);
    }
}

void PdfPages::line(const DrawnLine& line) {
    drawing_.line(at(line.x1, line.y1), at(line.x2, line.y2),
                  {.colour = Qt::black, .width = line.width * pointsPerDot, .flat = true});
}

void PdfPages::picture(const DrawnPicture& drawn, const QImage& image, const QSizeF& inches) {
    constexpr bool smooth = false;
    drawing_.picture(QRectF(at(drawn.x, drawn.y), inches * pointsPerInch), image, smooth);
}

}  // namespace tarn
