// Pages of a PDF file. Lengths are points, y goes down from the upper edge of the page. A face
// is embedded once with what is drawn of it, a picture is stored once, and so is what several
// pages show.
#pragma once

#include <QColor>
#include <QGlyphRun>
#include <QImage>
#include <QPointF>
#include <QRawFont>
#include <QRectF>
#include <QSizeF>
#include <deque>
#include <functional>
#include <map>
#include <vector>

#include "pdf/pdf_file.h"
#include "pdf/pdf_font.h"

class QIODevice;
class QTextLayout;
class QTransform;

namespace tarn::pdf {

struct PdfStroke {
    QColor colour;
    double width = 0;
    double dash = 0;    // length of dashes and of the gaps between them; 0: none
    bool flat = false;  // ends at its points, not half its width behind them
};

// Glyphs that follow each other by the face's own advances.
struct PdfText {
    PdfFont* font = nullptr;  // one that can be embedded
    double size = 0;
    double stretch = 1;    // sideways
    bool leaning = false;  // sheared to the right
    QPointF at;            // left end of the baseline
    std::vector<quint32> glyphs;
};

class PdfDrawing {
public:
    // `out` must outlive this.
    explicit PdfDrawing(QIODevice& out);
    PdfDrawing(const PdfDrawing&) = delete;
    PdfDrawing& operator=(const PdfDrawing&) = delete;

    void beginPage(const QSizeF& points);
    // False when the device took less than it was given.
    bool endPage();
    bool finish(const QString& title, const QString& creator);

    void fill(const QRectF& area, const QColor& colour);
    void frame(const QRectF& area, const PdfStroke& stroke);
    void disc(const QPointF& centre, double radius, const QColor& filling, const PdfStroke& edge);
    void line(const QPointF& from, const QPointF& to, const PdfStroke& stroke);
    // `smooth`: who shows the page is to blend the picture's dots.
    void picture(const QRectF& area, const QImage& image, bool smooth = true);
    void text(const PdfText& text, const QColor& colour);
    // Any text, each glyph where the layout puts it. `baseline` brings a place of the layout,
    // counted from the left end of its baseline, to the page.
    void words(QTextLayout& layout, const QTransform& baseline, const QColor& colour);
    // Glyphs that can't be embedded, which then can't be searched for.
    void outlines(const QGlyphRun& run, const QTransform& place, const QColor& colour);

    // The document's font of this face.
    PdfFont& fontOf(const QRawFont& face);
    PdfFont& fontOf(const SharedPdfFace& face);

    // What `draw` draws, to be shown on this page and on others of its size.
    int store(const std::function<void()>& draw);
    void show(int stored);

private:
    // Drawing operators, and what they have set.
    struct Content {
        QByteArray text;
        bool inText = false;
        const PdfFont* font = nullptr;
        double size = 0;
        double stretch = 1;
        QPointF at;  // beginning of the line of text
        QRgb filling = 0;
        int alpha = -1;
    };

    void number(double value);
    void point(const QPointF& at);
    void colour(const QColor& colour, const char* operation);
    void fillWith(const QColor& filling);
    void strokeWith(const PdfStroke& stroke);
    void rectangle(const QRectF& area);
    void beginText();
    void endText();
    void moveText(const QPointF& at, bool leaning);
    void setFont(const PdfFont& font, double size, double stretch);
    void glyphs(const std::vector<quint32>& ids);
    void drawGlyphs(const QGlyphRun& run, const PdfFont& font, const QTransform& place,
                    const QColor& colour);
    int writePicture(const QImage& image, bool smooth);
    int writePlane(const QImage& plane, const QByteArray& dictionary);
    void writeResources(const std::vector<int>& fonts);

    PdfFile file_;
    std::deque<PdfFont> fonts_;
    std::map<QByteArray, PdfFont*> fontsByFace_;
    std::map<qint64, int> pictures_;  // by their cache keys
    std::map<int, int> states_;       // by their opacity of 0 to 255
    std::vector<int> stored_;
    std::vector<int> pages_;
    QSizeF firstPage_;
    QSizeF page_;
    Content content_;
    int tree_;
    int resources_;
    int backgroundResources_;
};

}  // namespace tarn::pdf
