#include "pdf/pdf_face.h"

#include <QtEndian>
#include <algorithm>

namespace tarn::pdf {

// The head has the checksum of the whole file in it.
QByteArray faceKey(const QRawFont& face) {
    return face.familyName().toUtf8() + face.fontTable("head");
}

PdfFace::PdfFace(const QRawFont& face)
    : key(faceKey(face)),
      name(face.familyName() + face.styleName()),
      unitsPerEm(face.unitsPerEm()),
      ascent(face.ascent() / face.pixelSize()),
      descent(face.descent() / face.pixelSize()),
      capHeight(face.capHeight() / face.pixelSize()),
      head(face.fontTable("head")),
      hhea(face.fontTable("hhea")),
      hmtx(face.fontTable("hmtx")),
      maxp(face.fontTable("maxp")),
      offsets(face.fontTable("loca")),
      contours(face.fontTable("glyf")),
      postScript(face.fontTable("CFF ")) {
    if (hhea.size() < hheaBytes || unitsPerEm <= 0) {
        return;
    }
    measured_ = std::min<qsizetype>(qFromBigEndian<quint16>(hhea.constData() + hheaMetrics),
                                    hmtx.size() / 4);
    if (measured_ > 0 && !contours.isEmpty()) {
        outlines = Outlines::TrueType;
    } else if (measured_ > 0 && !postScript.isEmpty()) {
        outlines = Outlines::PostScript;
    }
}

double PdfFace::advance(quint32 glyph) const {
    if (measured_ == 0) {
        return 0;
    }
    const qsizetype place = std::min<qsizetype>(glyph, measured_ - 1);
    return qFromBigEndian<quint16>(hmtx.constData() + place * 4) / unitsPerEm;
}

}  // namespace tarn::pdf
