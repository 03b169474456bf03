// The texts of a page.
#include <QPainterPath>
#include <QTextLayout>
#include <QTransform>
#include <cmath>

#include "pdf/pdf_drawing.h"

namespace tarn::pdf {

namespace {

constexpr double lean = 0.3;          // of a sheared face, sideways for each point upwards
constexpr double leastShift = 0.005;  // thousandths of an em that are worth a number

// A literal string: what would end it or be read as another line end is written in escapes.
void appendGlyph(QByteArray& to, quint32 id) {
    for (const char byte : {static_cast<char>(id >> 8U), static_cast<char>(id & 0xFFU)}) {
        if (byte == '\r') {
            to += "\\r";
            continue;
        }
        if (byte == '(' || byte == ')' || byte == '\\') {
            to += '\\';
        }
        to += byte;
    }
}

QTextLine layOut(QTextLayout& layout) {
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    layout.setTextOption(option);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    return line;
}

// What the glyphs of a text read, as far as single characters have glyphs; f with i or l may
// come out as one.
std::map<quint32, QString> readingsOf(const QRawFont& face, const QString& text) {
    std::map<quint32, QString> readings;
    const auto add = [&](const QString& seen, const QString& meant) {
        const QList<quint32> ids = face.glyphIndexesForString(seen);
        if (ids.size() == 1 && ids.front() != 0) {
            readings.try_emplace(ids.front(), meant);
        }
    };
    for (const char32_t character : text.toUcs4()) {
        const QString one = QString::fromUcs4(&character, 1);
        add(one, one);
    }
    add(QStringLiteral("\uFB01"), QStringLiteral("fi"));
    add(QStringLiteral("\uFB02"), QStringLiteral("fl"));
    return readings;
}

}  // namespace

void PdfDrawing::beginText() {
    if (!content_.inText) {
        content_.text += "BT\n";
        content_.inText = true;
        content_.at = QPointF(0, page_.height());
    }
}

void PdfDrawing::endText() {
    if (content_.inText) {
        content_.text += "ET\n";
        content_.inText = false;
    }
}

void PdfDrawing::setFont(const PdfFont& font, double size, double stretch) {
    if (content_.font != &font || content_.size != size) {
        content_.text += pdfName('F', font.object()) + ' ';
        number(size);
        content_.text += "Tf\n";
        content_.font = &font;
        content_.size = size;
    }
    if (content_.stretch != stretch) {
        number(stretch * 100);
        content_.text += "Tz\n";
        content_.stretch = stretch;
    }
}

// Counted from the beginning of the line before, both rounded as they are written, so that no
// error adds up.
void PdfDrawing::moveText(const QPointF& at, bool leaning) {
    const auto rounded = [](double value) { return std::round(value * 1e4) / 1e4; };
    const QPointF to(rounded(at.x()), rounded(page_.height() - at.y()));
    if (leaning) {
        content_.text += "1 0 ";
        number(lean);
        content_.text += "1 ";
        number(to.x());
        number(to.y());
        content_.text += "Tm\n";
    } else {
        const QPointF from(content_.at.x(), page_.height() - content_.at.y());
        number(to.x() - from.x());
        number(to.y() - from.y());
        content_.text += "Td\n";
    }
    content_.at = QPointF(to.x(), page_.height() - to.y());
}

void PdfDrawing::glyphs(const std::vector<quint32>& ids) {
    content_.text += '(';
    for (const quint32 id : ids) {
        appendGlyph(content_.text, id);
    }
    content_.text += ')';
}

void PdfDrawing::words(QTextLayout& layout, const QTransform& baseline, const QColor& colour) {
    const QTextLine line = layOut(layout);
    QTransform place = baseline;
    place.translate(0, -line.ascent());
    for (const QGlyphRun& run : layout.glyphRuns()) {
        PdfFont& font = fontOf(run.rawFont());
        if (!font.canBeEmbedded()) {
            outlines(run, place, colour);
            continue;
        }
        const auto readings = readingsOf(run.rawFont(), layout.text());
        for (const quint32 id : run.glyphIndexes()) {
            const auto reading = readings.find(id);
            font.use(id, reading == readings.end() ? QString() : reading->second);
        }
        drawGlyphs(run, font, place, colour);
    }
}

// Each glyph where the layout has it: what that differs from the face's own advance stands
// between the glyphs.
void PdfDrawing::drawGlyphs(const QGlyphRun& run, const PdfFont& font, const QTransform& place,
                            const QColor& colour) {
    const QList<quint32> ids = run.glyphIndexes();
    const QList<QPointF> places = run.positions();
    const double pixels = run.rawFont().pixelSize();
    const double scale = std::hypot(place.m11(), place.m12());
    for (qsizetype first = 0; first < ids.size();) {
        endText();
        fillWith(colour);
        beginText();
        setFont(font, pixels * scale, 1);
        for (const double entry : {place.m11(), -place.m12(), -place.m21(), place.m22()}) {
            number(entry / scale);
        }
        point(place.map(places[first]));
        content_.text += "Tm [";
        double reached = places[first].x();
        qsizetype next = first;
        for (; next < ids.size() && places[next].y() == places[first].y(); ++next) {
            const double shift = (reached - places[next].x()) / pixels * 1000;
            if (std::abs(shift) > leastShift) {
                number(shift);
                reached = places[next].x();
            }
            glyphs({ids[next]});
            reached += font.advance(ids[next]) * pixels;
        }
        content_.text += "]TJ\n";
        first = next;
    }
    endText();
}

void PdfDrawing::outlines(const QGlyphRun& run, const QTransform& place, const QColor& colour) {
    endText();
    fillWith(colour);
    const QList<quint32> ids = run.glyphIndexes();
    const QList<QPointF> places = run.positions();
    for (qsizetype i = 0; i < ids.size(); ++i) {
        const QPainterPath path =
            place.map(run.rawFont().pathForGlyph(ids[i]).translated(places[i]));
        for (int at = 0; at < path.elementCount(); ++at) {
            const QPainterPath::Element element = path.elementAt(at);
            point(element);
            if (element.isMoveTo()) {
                content_.text += "m\n";
            } else if (element.isLineTo()) {
                content_.text += "l\n";
            } else if (element.isCurveTo()) {
                point(path.elementAt(++at));
                point(path.elementAt(++at));
                content_.text += "c\n";
            }
        }
        if (!path.isEmpty()) {
            content_.text += "f\n";
        }
    }
}

void PdfDrawing::text(const PdfText& text, const QColor& colour) {
    fillWith(colour);
    beginText();
    setFont(*text.font, text.size, text.stretch);
    moveText(text.at, text.leaning);
    glyphs(text.glyphs);
    content_.text += "Tj\n";
    if (text.leaning) {
        endText();
    }
}

}  // namespace tarn::pdf
