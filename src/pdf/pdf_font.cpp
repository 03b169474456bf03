#include "pdf/pdf_font.h"

#include <QtEndian>
#include <algorithm>
#include <set>

#include "pdf/font_subset.h"

namespace tarn::pdf {

namespace {

constexpr double glyphUnits = 1000;  // of a PDF's widths, in an em

QByteArray hexOf(quint32 glyph) {
    return QByteArray::number(glyph, 16).rightJustified(4, '0');
}

QByteArray hexOf(const QString& text) {
    QByteArray hex;
    for (const QChar unit : text) {
        hex += QByteArray::number(unit.unicode(), 16).rightJustified(4, '0');
    }
    return hex;
}

}  // namespace

void PdfFont::use(quint32 glyph, QStringView text) {
    if (const auto place = used_.lower_bound(glyph);
        place == used_.end() || place->first != glyph) {
        used_.emplace_hint(place, glyph, text.toString());
    }
}

QByteArray PdfFont::widths() const {
    QByteArray text = "[";
    for (const auto& [glyph, meaning] : used_) {
        text += QByteArray::number(glyph) + '[';
        appendNumber(text, advance(glyph) * glyphUnits);
        text += ']';
    }
    return text + ']';
}

QByteArray PdfFont::meanings() const {
    QByteArray text =
        "/CIDInit/ProcSet findresource begin 12 dict begin begincmap\n"
        "/CIDSystemInfo<</Registry(Adobe)/Ordering(UCS)/Supplement 0>>def\n"
        "/CMapName/Adobe-Identity-UCS def/CMapType 2 def\n"
        "1 begincodespacerange<0000><ffff>endcodespacerange\n";
    constexpr std::size_t mostInBlock = 100;
    std::size_t left = used_.size();
    std::size_t inBlock = 0;
    for (const auto& [glyph, meaning] : used_) {
        if (inBlock == 0) {
            inBlock = std::min(left, mostInBlock);
            text += QByteArray::number(static_cast<qulonglong>(inBlock)) + " beginbfchar\n";
        }
        text += '<' + hexOf(glyph) + "><" + hexOf(meaning) + ">\n";
        --left;
        if (--inBlock == 0) {
            text += "endbfchar\n";
        }
    }
    return text + "endcmap CMapName currentdict/CMap defineresource pop end end\n";
}

int PdfFont::writeProgram(PdfFile& file) const {
    const int program = file.reserve();
    if (face_->outlines == PdfFace::Outlines::PostScript) {
        file.writeStream(program, "/Subtype/CIDFontType0C", face_->postScript);
        return program;
    }
    std::set<quint32> glyphs;
    for (const auto& [glyph, meaning] : used_) {
        glyphs.insert(glyph);
    }
    const QByteArray subset = trueTypeSubset(*face_, glyphs);
    file.writeStream(program, "/Length1 " + QByteArray::number(subset.size()), subset);
    return program;
}

QByteArray PdfFont::description(int program, const QByteArray& name) const {
    QByteArray text = "<</Type/FontDescriptor/FontName" + name + "/Flags 4/ItalicAngle 0/Ascent ";
    appendNumber(text, face_->ascent * glyphUnits);
    text += "/Descent ";
    appendNumber(text, -face_->descent * glyphUnits);
    text += "/CapHeight ";
    appendNumber(text, face_->capHeight * glyphUnits);
    const QByteArray& head = face_->head;
    text += "/FontBBox[";
    for (qsizetype at = 36; at < 44; at += 2) {
        const auto edge =
            head.size() < 44 ? qint16{0} : qFromBigEndian<qint16>(head.constData() + at);
        appendNumber(text, edge * glyphUnits / face_->unitsPerEm);
        text += ' ';
    }
    return text + "]/StemV 80" +
           (face_->outlines == PdfFace::Outlines::TrueType ? "/FontFile2 " : "/FontFile3 ") +
           pdfReference(program) + ">>";
}

void PdfFont::write(PdfFile& file) const {
    QByteArray plainName;
    for (const QChar c : face_->name) {
        if (c.unicode() < 0x80 && c.isLetterOrNumber()) {
            plainName += c.toLatin1();
        }
    }
    const char letter = static_cast<char>('A' + number_ % 26);
    const char before = static_cast<char>('A' + number_ / 26 % 26);
    const QByteArray name = QByteArray("/PAPE") + before + letter + '+' + plainName;
    const int program = writeProgram(file);
    const int description = file.reserve();
    const int descendant = file.reserve();
    const int meanings = file.reserve();
    file.write(description, this->description(program, name));
    const bool trueType = face_->outlines == PdfFace::Outlines::TrueType;
    file.write(descendant, QByteArray("<</Type/Font/Subtype") +
                               (trueType ? "/CIDFontType2/CIDToGIDMap/Identity" : "/CIDFontType0") +
                               "/BaseFont" + name +
                               "/CIDSystemInfo<</Registry(Adobe)/Ordering(Identity)/Supplement 0>>"
                               "/FontDescriptor " +
                               pdfReference(description) + "/W" + widths() + ">>");
    file.writeStream(meanings, {}, this->meanings());
    file.write(object_, "<</Type/Font/Subtype/Type0/Encoding/Identity-H/BaseFont" + name +
                            "/DescendantFonts[" + pdfReference(descendant) + "]/ToUnicode " +
                            pdfReference(meanings) + ">>");
}

}  // namespace tarn::pdf
