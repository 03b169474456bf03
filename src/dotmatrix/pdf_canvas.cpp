#include "dotmatrix/pdf_canvas.h"

#include <QTextLayout>
#include <QTransform>
#include <cmath>

namespace tarn::dotmatrix {

namespace {

pdf::PdfStroke strokeOf(const Stroke& stroke) {
    return {.colour = stroke.colour,
            .width = stroke.width,
            .dash = stroke.dashed ? dashWidths * stroke.width : 0,
            .flat = false};
}

}  // namespace

void PdfCanvas::fill(const QRectF& area, const QColor& colour) {
    drawing_.fill(area, colour);
}

void PdfCanvas::frame(const QRectF& area, const Stroke& stroke) {
    drawing_.frame(area, strokeOf(stroke));
}

void PdfCanvas::disc(const QPointF& centre, double radius, const QColor& filling,
                     const Stroke& edge) {
    drawing_.disc(centre, radius, filling, strokeOf(edge));
}

void PdfCanvas::line(const QPointF& from, const QPointF& to, const Stroke& stroke) {
    drawing_.line(from, to, strokeOf(stroke));
}

void PdfCanvas::picture(const QRectF& area, const QImage& image) {
    drawing_.picture(area, image);
}

void PdfCanvas::words(const Words& words) {
    QTextLayout layout(words.text, words.font);
    QTransform baseline = QTransform::fromTranslate(words.at.x(), words.at.y());
    baseline.rotate(words.turn);
    baseline.scale(words.scale, words.scale);
    drawing_.words(layout, baseline, words.colour);
}

void PdfCanvas::background(double width, PaperUnits height,
                           const std::shared_ptr<const FormDesign>& form,
                           const std::function<void()>& draw) {
    const auto [place, isNew] = backgrounds_.try_emplace({width, height, form}, 0);
    if (isNew) {
        place->second = drawing_.store(draw);
    }
    drawing_.show(place->second);
}

PdfCanvas::Look PdfCanvas::lookOf(bool bold, bool italic) const {
    Look look;
    look.asked = print_.face(bold, italic);
    look.face = QRawFont::fromFont(look.asked);
    look.leaning = italic && look.face.fontTable("head") ==
                                 QRawFont::fromFont(print_.face(bold, false)).fontTable("head");
    return look;
}

// A character that the face doesn't have comes from the one that the toolkit takes for it.
const PdfCanvas::Glyph& PdfCanvas::glyphOf(Look& look, char16_t character) {
    const auto [known, isNew] = look.glyphs.try_emplace(character);
    if (!isNew) {
        return known->second;
    }
    const QString text = QChar(character);
    QRawFont face = look.face;
    QList<quint32> ids = face.glyphIndexesForString(text);
    if (ids.isEmpty() || ids.front() == 0) {
        QTextLayout layout(text, look.asked);
        layout.beginLayout();
        layout.createLine();
        layout.endLayout();
        if (const auto runs = layout.glyphRuns(); !runs.isEmpty()) {
            face = runs.front().rawFont();
            ids = runs.front().glyphIndexes();
        }
    }
    known->second = {&drawing_.fontOf(face), ids.isEmpty() ? 0 : ids.front(), face};
    known->second.font->use(known->second.id, text);
    return known->second;
}

bool PdfCanvas::fitsCell(const Glyph& glyph) const {
    constexpr double same = 1e-5;
    return std::abs(glyph.font->advance(glyph.id) - print_.advance() / print_.pixels()) < same;
}

void PdfCanvas::drawOutline(const Glyph& glyph, const QPointF& at, double stretch) {
    QGlyphRun outline;
    outline.setRawFont(glyph.face);
    outline.setGlyphIndexes({glyph.id});
    outline.setPositions({QPointF(0, 0)});
    const double scale = printEm / glyph.face.pixelSize();
    drawing_.outlines(outline, QTransform(scale * stretch, 0, 0, scale, at.x(), at.y()), printInk);
}

// Glyphs as wide as the pitch's cells follow each other by themselves; any other is a text of
// its own at its place.
void PdfCanvas::run(const PrintedRun& run) {
    std::optional<Look>& look = looks_[(run.bold ? 1U : 0U) + (run.italic ? 2U : 0U)];
    if (!look) {
        look = lookOf(run.bold, run.italic);
    }
    piece_.size = printEm;
    piece_.stretch = run.cell * print_.pixels() / (print_.advance() * printEm);
    piece_.leaning = look->leaning;
    for (qsizetype next = 0; next < run.text.size();) {
        piece_.at = run.at + QPointF(run.cell * static_cast<double>(next), 0);
        const Glyph& begin = glyphOf(*look, run.text[next++].unicode());
        if (!begin.font->canBeEmbedded()) {
            drawOutline(begin, piece_.at, piece_.stretch);
            continue;
        }
        piece_.font = begin.font;
        piece_.glyphs.assign(1, begin.id);
        for (bool follows = fitsCell(begin); follows && next < run.text.size();) {
            const Glyph& glyph = glyphOf(*look, run.text[next].unicode());
            follows = glyph.font == begin.font && fitsCell(glyph);
            if (follows) {
                piece_.glyphs.push_back(glyph.id);
                ++next;
            }
        }
        drawing_.text(piece_, printInk);
    }
}

}  // namespace tarn::dotmatrix
