// The pages of a document as a PDF file.
#pragma once

#include <QSizeF>
#include <array>
#include <map>
#include <string>
#include <tuple>

#include "pdf/pdf_drawing.h"
#include "pdf/pdf_face.h"
#include "platform/qt/page_canvas.h"

class QIODevice;

namespace tarn {

// The types that documents are written in, each looked up once for all of them.
class PdfTypes {
public:
    static constexpr char16_t charactersEnd = 0x180;  // of those that have a glyph at hand

    struct Type {
        pdf::SharedPdfFace face;
        double size = 0;    // points, to the whole dot of a laser printer as the toolkit has it
        double ascent = 0;  // points
        std::array<quint32, charactersEnd> glyphs{};  // 0: none
    };

    const Type& of(const DrawnText& text);

private:
    std::map<QByteArray, pdf::SharedPdfFace> faces_;
    std::map<std::tuple<std::string, double, bool>, Type> types_;
};

class PdfPages : public PageCanvas {
public:
    // Both must outlive this.
    PdfPages(QIODevice& out, PdfTypes& types, const QSizeF& points)
        : drawing_(out), types_(types), points_(points) {}

    bool begin() override;
    bool newPage() override;
    bool end() override;
    void text(const DrawnText& text) override;
    void line(const DrawnLine& line) override;
    void picture(const DrawnPicture& at, const QImage& image, const QSizeF& inches) override;

private:
    bool drawSimply(const DrawnText& text, const PdfTypes::Type& type, const QPointF& baseline);

    pdf::PdfDrawing drawing_;
    PdfTypes& types_;
    QSizeF points_;
    std::map<const PdfTypes::Type*, pdf::PdfFont*> fonts_;
    pdf::PdfText piece_;
};

}  // namespace tarn
