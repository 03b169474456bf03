// The paper as a PDF file: a run of print is one text with the pitch of its cells, and what
// lies under the print of all forms of a size is stored once.
#pragma once

#include <QRawFont>
#include <QSizeF>
#include <array>
#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <unordered_map>

#include "dotmatrix/paper_canvas.h"
#include "dotmatrix/paper_fonts.h"
#include "pdf/pdf_drawing.h"

class QIODevice;

namespace tarn::dotmatrix {

class PdfCanvas : public PaperCanvas {
public:
    // Both must outlive this.
    PdfCanvas(QIODevice& out, const PrintFont& print) : drawing_(out), print_(print) {}

    void beginPage(const QSizeF& points) { drawing_.beginPage(points); }
    // False when the device took less than it was given.
    bool endPage() { return drawing_.endPage(); }
    bool finish(const QString& title, const QString& creator) {
        return drawing_.finish(title, creator);
    }

    void fill(const QRectF& area, const QColor& colour) override;
    void frame(const QRectF& area, const Stroke& stroke) override;
    void disc(const QPointF& centre, double radius, const QColor& filling,
              const Stroke& edge) override;
    void line(const QPointF& from, const QPointF& to, const Stroke& stroke) override;
    void picture(const QRectF& area, const QImage& image) override;
    void words(const Words& words) override;
    void run(const PrintedRun& run) override;
    void background(double width, PaperUnits height, const std::shared_ptr<const FormDesign>& form,
                    const std::function<void()>& draw) override;

private:
    struct Glyph {
        pdf::PdfFont* font = nullptr;
        quint32 id = 0;
        QRawFont face;
    };
    // A look of the print, and where its characters are found.
    struct Look {
        QFont asked;
        QRawFont face;
        bool leaning = false;  // the face is upright and has to be sheared
        std::unordered_map<char16_t, Glyph> glyphs;
    };

    Look lookOf(bool bold, bool italic) const;
    const Glyph& glyphOf(Look& look, char16_t character);
    // Whether the glyph is as wide as the print's cells are.
    bool fitsCell(const Glyph& glyph) const;
    void drawOutline(const Glyph& glyph, const QPointF& at, double stretch);

    pdf::PdfDrawing drawing_;
    const PrintFont& print_;
    std::array<std::optional<Look>, 4> looks_;
    std::map<std::tuple<double, PaperUnits, std::shared_ptr<const FormDesign>>, int> backgrounds_;
    pdf::PdfText piece_;
};

}  // namespace tarn::dotmatrix
