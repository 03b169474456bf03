// The paper as a PDF file: a run of print is one text with the pitch of its cells, a face is
// embedded once, and what lies under the print of all forms is stored once.
#pragma once

#include <QGlyphRun>
#include <QRawFont>
#include <QSizeF>
#include <array>
#include <deque>
#include <map>
#include <optional>
#include <unordered_map>
#include <vector>

#include "dotmatrix/paper_canvas.h"
#include "dotmatrix/paper_fonts.h"
#include "dotmatrix/pdf_file.h"
#include "dotmatrix/pdf_font.h"

class QIODevice;
class QTransform;

namespace tarn::dotmatrix {

class PdfCanvas : public PaperCanvas {
public:
    // Both must outlive this.
    PdfCanvas(QIODevice& out, const PrintFont& print);

    void beginPage(const QSizeF& points);
    // False when the device took less than it was given.
    bool endPage();
    bool finish(const QString& title, const QString& creator);

    void fill(const QRectF& area, const QColor& colour) override;
    void frame(const QRectF& area, const Stroke& stroke) override;
    void disc(const QPointF& centre, double radius, const QColor& filling,
              const Stroke& edge) override;
    void line(const QPointF& from, const QPointF& to, const Stroke& stroke) override;
    void picture(const QRectF& area, const QImage& image) override;
    void words(const Words& words) override;
    void run(const PrintedRun& run) override;
    void background(PaperUnits height, const std::string& form,
                    const std::function<void()>& draw) override;

private:
    struct Glyph {
        PdfFont* font = nullptr;
        quint32 id = 0;
    };
    // A look of the print, and where its characters are found.
    struct Look {
        QFont asked;
        QRawFont face;
        bool leaning = false;  // the face is upright and has to be sheared
        std::unordered_map<char16_t, Glyph> glyphs;
    };
    // Drawing operators, and what they have set.
    struct Content {
        QByteArray text;
        bool inText = false;
        const PdfFont* font = nullptr;
        double size = 0;
        double stretch = 100;
        QPointF at;  // beginning of the line of text
        QRgb filling = 0;
        int alpha = -1;
    };

    void number(double value);
    void point(const QPointF& at);
    void colour(const QColor& colour, const char* operation);
    void fillWith(const QColor& colour);
    void strokeWith(const Stroke& stroke);
    void rectangle(const QRectF& area);
    void beginText();
    void endText();
    void moveText(const QPointF& at, bool leaning);
    void setFont(const PdfFont& font, double size, double stretch);
    void glyphs(const std::vector<quint32>& ids);
    void drawGlyphs(const QGlyphRun& run, const PdfFont& font, const QTransform& place,
                    const QColor& colour);
    void drawOutlines(const QGlyphRun& run, const QTransform& place, const QColor& colour);

    Look lookOf(bool bold, bool italic) const;
    Glyph glyphOf(Look& look, char16_t character);
    PdfFont& fontOf(const QRawFont& face);
    int writePicture(const QImage& image);
    int writePlane(const QImage& plane, const QByteArray& dictionary);
    void writeResources(const std::vector<int>& fonts);

    PdfFile file_;
    const PrintFont& print_;
    std::array<std::optional<Look>, 4> looks_;
    std::deque<PdfFont> fonts_;
    std::map<QByteArray, PdfFont*> fontsByFace_;
    std::map<qint64, int> pictures_;  // by their cache keys
    std::map<std::pair<PaperUnits, std::string>, int> backgrounds_;
    std::map<int, int> states_;  // by their opacity of 0 to 255
    std::vector<int> pages_;
    QSizeF firstPage_;
    QSizeF page_;
    Content content_;
    std::vector<quint32> piece_;
    int tree_;
    int resources_;
    int backgroundResources_;
};

}  // namespace tarn::dotmatrix
