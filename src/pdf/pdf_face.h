// What of a face goes into a PDF file, taken from the toolkit once. It can be kept from
// document to document and by any thread, which the toolkit's own fonts can't.
#pragma once

#include <QByteArray>
#include <QRawFont>
#include <QString>
#include <memory>

namespace tarn::pdf {

// Of the table "hhea" of a font file.
inline constexpr qsizetype hheaBytes = 36;
inline constexpr qsizetype hheaMetrics = 34;  // how many glyphs have an advance of their own

struct PdfFace {
    enum class Outlines { TrueType, PostScript, None };

    explicit PdfFace(const QRawFont& face);

    // How far the next glyph stands, of a size of 1.
    double advance(quint32 glyph) const;

    QByteArray key;  // the same for the same face
    QString name;
    Outlines outlines = Outlines::None;
    double unitsPerEm = 0;
    double ascent = 0;  // of a size of 1
    double descent = 0;
    double capHeight = 0;
    QByteArray head;
    QByteArray hhea;
    QByteArray hmtx;
    QByteArray maxp;
    QByteArray offsets;  // of the outlines
    QByteArray contours;
    QByteArray postScript;

private:
    qsizetype measured_ = 0;  // glyphs with an advance of their own
};

using SharedPdfFace = std::shared_ptr<const PdfFace>;

// Of a face as the toolkit has it: what tells it from all others.
QByteArray faceKey(const QRawFont& face);

}  // namespace tarn::pdf
