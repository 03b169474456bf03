// A face in a PDF file, embedded with what is drawn of it and with what its glyphs read, so
// that the text can be searched and copied.
#pragma once

#include <QByteArray>
#include <QString>
#include <map>
#include <utility>

#include "pdf/pdf_face.h"
#include "pdf/pdf_file.h"

namespace tarn::pdf {

class PdfFont {
public:
    // `number` tells it from the other faces of the document, from 0.
    PdfFont(SharedPdfFace face, int number, int object)
        : face_(std::move(face)), number_(number), object_(object) {}

    int object() const { return object_; }
    // Fonts of pictures have no outlines that can be embedded.
    bool canBeEmbedded() const { return face_->outlines != PdfFace::Outlines::None; }
    double advance(quint32 glyph) const { return face_->advance(glyph); }
    // Tells that the glyph is drawn, and stands for this.
    void use(quint32 glyph, QStringView text);
    void write(PdfFile& file) const;

private:
    QByteArray widths() const;
    QByteArray meanings() const;
    QByteArray description(int program, const QByteArray& name) const;
    int writeProgram(PdfFile& file) const;

    SharedPdfFace face_;
    int number_;
    int object_;
    std::map<quint32, QString> used_;
};

}  // namespace tarn::pdf
