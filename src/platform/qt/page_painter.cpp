#include "platform/qt/page_painter.h"

#include <QFont>
#include <QFontMetricsF>
#include <QImage>
#include <QImageReader>
#include <QPageLayout>
#include <QPainter>
#include <QPen>
#include <QPrinter>
#include <map>
#include <tuple>

namespace tarn {
namespace {

constexpr double metresPerInch = 0.0254;
// Size of a picture whose file doesn't tell one.
constexpr double pictureDotsPerInch = 96;
// Decoded: an A4 sheet scanned at 1200 dots per inch takes half of it.
constexpr int pictureMegabytes = 1024;

// A file without a resolution gets that of the screen, which is none of its own.
double pictureResolution(int dotsPerMetre) {
    static const int none = QImage(1, 1, QImage::Format_Mono).dotsPerMeterX();
    return dotsPerMetre == none || dotsPerMetre <= 0 ? pictureDotsPerInch
                                                     : dotsPerMetre * metresPerInch;
}

QSizeF naturalSize(const QImage& image) {  // inches
    return {image.width() / pictureResolution(image.dotsPerMeterX()),
            image.height() / pictureResolution(image.dotsPerMeterY())};
}

// A page begins with the first thing drawn on it.
std::size_t pagesOf(std::span<const PrintOperation> document) {
    std::size_t pages = 0;
    bool begun = false;
    for (const PrintOperation& operation : document) {
        if (std::holds_alternative<PageBreak>(operation)) {
            begun = false;
        } else if (!begun && draws(operation)) {
            begun = true;
            ++pages;
        }
    }
    return pages;
}

// Where the printable area begins on the sheet, in dots; a PDF can be printed on everywhere.
QPointF printableCorner(const QPrinter& printer) {
    if (printer.outputFormat() == QPrinter::PdfFormat) {
        return {};
    }
    QPageLayout page = printer.pageLayout();
    page.setUnits(QPageLayout::Inch);
    const QMarginsF margins = page.minimumMargins();
    return QPointF(margins.left(), margins.top()) * printer.resolution();
}

class PrinterPages : public PageCanvas {
public:
    explicit PrinterPages(QPrinter& printer)
        : printer_(printer),
          dotsPerInch_(printer.resolution()),
          dotsPerCentimetre_(dotsPerInch_ / centimetresPerInch),
          corner_(printableCorner(printer)) {}

    bool begin() override { return painter_.begin(&printer_); }
    bool newPage() override { return printer_.newPage(); }
    bool end() override { return painter_.end(); }

    void text(const DrawnText& text) override {
        const Type& type = typeOf(text);
        painter_.setFont(type.font);
        painter_.drawText(at(text.x, text.y) + QPointF(0, type.ascent),
                          QString::fromStdString(text.text));
    }
    void line(const DrawnLine& line) override {
        const double width = line.width * dotsPerInch_ / lineDotsPerInch;
        painter_.setPen(QPen(Qt::black, width, Qt::SolidLine, Qt::FlatCap));
        painter_.drawLine(at(line.x1, line.y1), at(line.x2, line.y2));
    }
    void picture(const DrawnPicture& drawn, const QImage& image, const QSizeF& inches) override {
        painter_.drawImage(QRectF(at(drawn.x, drawn.y), inches * dotsPerInch_), image);
    }

private:
    struct Type {
        QFont font;
        double ascent = 0;  // dots
    };

    QPointF at(double x, double y) const { return corner_ + QPointF(x, y) * dotsPerCentimetre_; }

    // Finding a face costs more than drawing with it.
    const Type& typeOf(const DrawnText& text) {
        const auto [place, isNew] = types_.try_emplace({text.font, text.size, text.bold});
        if (isNew) {
            const QFont font = fontOf(text);
            place->second = {font, QFontMetricsF(font, &printer_).ascent()};
        }
        return place->second;
    }

    QPrinter& printer_;
    double dotsPerInch_;
    double dotsPerCentimetre_;
    QPointF corner_;
    QPainter painter_;
    std::map<std::tuple<std::string, double, bool>, Type> types_;
};

class PagePainter {
public:
    PagePainter(PageCanvas& canvas, std::size_t pages, const Progress& progress)
        : canvas_(canvas), pages_(pages), progress_(progress), begun_(canvas.begin()) {}

    bool take(const PrintOperation& operation) {
        if (std::holds_alternative<PageBreak>(operation)) {
            breakAsked_ = pageBegun_;
        } else if (begun_ && draws(operation)) {
            begun_ = beginPage();
            std::visit([this](const auto& drawn) { draw(drawn); }, operation);
        }
        return begun_;
    }

    bool end() { return begun_ && canvas_.end(); }

private:
    bool beginPage() {
        if (breakAsked_ && progress_) {
            progress_(++done_, pages_);
        }
        const bool turned = !breakAsked_ || canvas_.newPage();
        breakAsked_ = false;
        pageBegun_ = true;
        return turned;
    }

    void draw(const DrawnText& text) { canvas_.text(text); }
    void draw(const DrawnLine& line) { canvas_.line(line); }
    void draw(const DrawnPicture& drawn) {
        const QImage& image = imageOf(*drawn.picture.bytes);
        if (!image.isNull()) {
            canvas_.picture(drawn, image, naturalSize(image));
        }
    }
    template <typename Setting>
    void draw(const Setting&) {}

    // Pages that share a picture's bytes share the picture on paper, too.
    const QImage& imageOf(const std::string& bytes) {
        const auto [place, isNew] = images_.try_emplace(&bytes);
        if (isNew) {
            QImageReader::setAllocationLimit(pictureMegabytes);
            place->second = QImage::fromData(
                QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size())));
        }
        return place->second;
    }

    PageCanvas& canvas_;
    std::size_t pages_;
    std::size_t done_ = 0;
    const Progress& progress_;
    std::map<const std::string*, QImage> images_;
    bool begun_;
    bool pageBegun_ = false;
    bool breakAsked_ = false;
};

}  // namespace

bool paintDocument(PageCanvas& canvas, std::span<const PrintOperation> document,
                   const Progress& progress) {
    PagePainter page(canvas, pagesOf(document), progress);
    for (const PrintOperation& operation : document) {
        if (!page.take(operation)) {
            return false;
        }
    }
    return page.end();
}

bool paintDocument(QPrinter& printer, std::span<const PrintOperation> document,
                   const Progress& progress) {
    PrinterPages pages(printer);
    return paintDocument(pages, document, progress);
}

}  // namespace tarn
