#include "dotmatrix/pdf_font.h"

#include <QtEndian>
#include <algorithm>

#include "dotmatrix/font_subset.h"

namespace tarn::dotmatrix {

namespace {

constexpr double glyphUnits = 1000;  // of a PDF's widths, in an em
constexpr qsizetype hheaMetrics = 34;
constexpr qsizetype hheaBytes = 36;

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

PdfFont::PdfFont(const QRawFont& face, int number, int object)
    : face_(face),
      number_(number),
      object_(object),
      unitsPerEm_(face.unitsPerEm()),
      metrics_(face.fontTable("hmtx")) {
    const QByteArray header = face.fontTable("hhea");
    if (header.size() < hheaBytes || unitsPerEm_ <= 0) {
        return;
    }
    measured_ = std::min<qsizetype>(qFromBigEndian<quint16>(header.constData() + hheaMetrics),
                                    metrics_.size() / 4);
    if (measured_ > 0 && !face.fontTable("glyf").isEmpty()) {
        outlines_ = Outlines::TrueType;
    } else if (measured_ > 0 && !face.fontTable("CFF ").isEmpty()) {
        outlines_ = Outlines::PostScript;
    }
}

double PdfFont::advance(quint32 glyph) const {
    if (measured_ == 0) {
        return 0;
    }
    const qsizetype place = std::min<qsizetype>(glyph, measured_ - 1);
    return qFromBigEndian<quint16>(metrics_.constData() + place * 4) / unitsPerEm_;
}

void PdfFont::use(quint32 glyph, const QString& text) {
    used_.try_emplace(glyph, text);
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
    if (outlines_ == Outlines::PostScript) {
        file.writeStream(program, "/Subtype/CIDFontType0C", face_.fontTable("CFF "));
        return program;
    }
    std::set<quint32> glyphs;
    for (const auto& [glyph, meaning] : used_) {
        glyphs.insert(glyph);
    }
    const QByteArray subset = trueTypeSubset(face_, glyphs);
    file.writeStream(program, "/Length1 " + QByteArray::number(subset.size()), subset);
    return program;
}

QByteArray PdfFont::description(int program, const QByteArray& name) const {
    const double scale = glyphUnits / face_.pixelSize();
    QByteArray text = "<</Type/FontDescriptor/FontName" + name + "/Flags 4/ItalicAngle 0/Ascent ";
    appendNumber(text, face_.ascent() * scale);
    text += "/Descent ";
    appendNumber(text, -face_.descent() * scale);
    text += "/CapHeight ";
    appendNumber(text, face_.capHeight() * scale);
    const QByteArray head = face_.fontTable("head");
    text += "/FontBBox[";
    for (qsizetype at = 36; at < 44; at += 2) {
        const auto edge =
            head.size() < 44 ? qint16{0} : qFromBigEndian<qint16>(head.constData() + at);
        appendNumber(text, edge * glyphUnits / unitsPerEm_);
        text += ' ';
    }
    return text + "]/StemV 80" + (outlines_ == Outlines::TrueType ? "/FontFile2 " : "/FontFile3 ") +
           pdfReference(program) + ">>";
}

void PdfFont::write(PdfFile& file) const {
    QByteArray plainName;
    for (const QChar c : face_.familyName() + face_.styleName()) {
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
    const bool trueType = outlines_ == Outlines::TrueType;
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

}  // namespace tarn::dotmatrix
