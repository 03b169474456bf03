// A face cut down to the outlines that a document draws.
#pragma once

#include <QByteArray>
#include <set>

#include "pdf/pdf_face.h"

namespace tarn::pdf {

// A TrueType file of these glyphs, under the numbers they have in the face, without
// instructions for small sizes. Empty where the face has no such outlines, or its tables
// don't hold what they should.
QByteArray trueTypeSubset(const PdfFace& face, const std::set<quint32>& glyphs);

}  // namespace tarn::pdf
