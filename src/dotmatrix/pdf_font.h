// A face in a PDF file, embedded with what is drawn of it and with what its glyphs read, so
// that the text can be searched and copied.
#pragma once

#include <QByteArray>
#include <QRawFont>
#include <QString>
#include <map>
#include <set>

#include "dotmatrix/pdf_file.h"

namespace tarn::dotmatrix {

class PdfFont {
public:
    // `number` tells it from the other faces of the document, from 0.
    PdfFont(const QRawFont& face, int number, int object);

    const QRawFont& face() const { return face_; }
    int object() const { return object_; }
    // Fonts of pictures have no outlines that can be embedded.
    bool canBeEmbedded() const { return outlines_ != Outlines::None; }
    // How far the next glyph stands, of a size of 1.
    double advance(quint32 glyph) const;
    // Tells that the glyph is drawn, and stands for this.
    void use(quint32 glyph, const QString& text);
    void write(PdfFile& file) const;

private:
    enum class Outlines { TrueType, PostScript, None };

    QByteArray widths() const;
    QByteArray meanings() const;
    QByteArray description(int program, const QByteArray& name) const;
    int writeProgram(PdfFile& file) const;

    QRawFont face_;
    int number_;
    int object_;
    Outlines outlines_ = Outlines::None;
    double unitsPerEm_ = 0;
    QByteArray metrics_;  // advance and left edge of each glyph, as the face keeps them
    qsizetype measured_ = 0;
    std::map<quint32, QString> used_;
};

}  // namespace tarn::dotmatrix
