#include "platform/qt/page_painter.h"

#include <QFont>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QImage>
#include <QImageReader>
#include <QPageLayout>
#include <QPainter>
#include <QPen>
#include <QPrinter>
#include <array>
#include <map>
#include <tuple>

namespace tarn {
namespace {

constexpr double centimetresPerInch = 2.54;
constexpr double metresPerInch = 0.0254;
// The widths of lines were chosen on laser printers of this resolution.
constexpr double dotsPerInch = 600;
// Size of a picture whose file doesn't tell one.
constexpr double pictureDotsPerInch = 96;
// Decoded: an A4 sheet scanned at 1200 dots per inch takes half of it.
constexpr int pictureMegabytes = 1024;

struct Substitute {
    const char* wanted;
    const char* face;
};

// Faces with the same widths, for machines without the wanted ones.
constexpr std::array substitutes{Substitute{"Arial", "Liberation Sans"},
                                 Substitute{"Courier New", "Liberation Mono"},
                                 Substitute{"Times New Roman", "Liberation Serif"}};

QString faceFor(const std::string& wanted) {
    QString family = QString::fromStdString(wanted);
    if (QFontDatabase::hasFamily(family)) {
        return family;
    }
    for (const Substitute& substitute : substitutes) {
        QString face = QString::fromLatin1(substitute.face);
        if (wanted == substitute.wanted && QFontDatabase::hasFamily(face)) {
            return face;
        }
    }
    return family;
}

// Widths add up character by character, the same on every device.
QFont fontOf(const DrawnText& text) {
    QFont font(faceFor(text.font));
    font.setPointSizeF(text.size);
    font.setBold(text.bold);
    font.setKerning(false);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

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

class PagePainter {
public:
    PagePainter(QPrinter& printer, std::size_t pages, const Progress& progress)
        : printer_(printer),
          pages_(pages),
          progress_(progress),
          dotsPerInch_(printer.resolution()),
          dotsPerCentimetre_(dotsPerInch_ / centimetresPerInch),
          corner_(printableCorner(printer)),
          begun_(painter_.begin(&printer)) {}

    bool take(const PrintOperation& operation) {
        if (std::holds_alternative<PageBreak>(operation)) {
            breakAsked_ = pageBegun_;
        } else if (begun_ && draws(operation)) {
            begun_ = beginPage();
            std::visit([this](const auto& drawn) { draw(drawn); }, operation);
        }
        return begun_;
    }

    bool end() { return begun_ && painter_.end(); }

private:
    QPointF at(double x, double y) const { return corner_ + QPointF(x, y) * dotsPerCentimetre_; }

    bool beginPage() {
        if (breakAsked_ && progress_) {
            progress_(++done_, pages_);
        }
        const bool turned = !breakAsked_ || printer_.newPage();
        breakAsked_ = false;
        pageBegun_ = true;
        return turned;
    }

    void draw(const DrawnText& text) {
        const Type& type = typeOf(text);
        painter_.setFont(type.font);
        painter_.drawText(at(text.x, text.y) + QPointF(0, type.ascent),
                          QString::fromStdString(text.text));
    }
    void draw(const DrawnLine& line) {
        const double width = line.width * dotsPerInch_ / dotsPerInch;
        painter_.setPen(QPen(Qt::black, width, Qt::SolidLine, Qt::FlatCap));
        painter_.drawLine(at(line.x1, line.y1), at(line.x2, line.y2));
    }
    void draw(const DrawnPicture& drawn) {
        const QImage& image = imageOf(*drawn.picture.bytes);
        if (!image.isNull()) {
            painter_.drawImage(QRectF(at(drawn.x, drawn.y), naturalSize(image) * dotsPerInch_),
                               image);
        }
    }
    template <typename Setting>
    void draw(const Setting&) {}

    struct Type {
        QFont font;
        double ascent = 0;  // dots
    };
    // Finding a face costs more than drawing with it.
    const Type& typeOf(const DrawnText& text) {
        const auto [place, isNew] = types_.try_emplace({text.font, text.size, text.bold});
        if (isNew) {
            const QFont font = fontOf(text);
            place->second = {font, QFontMetricsF(font, &printer_).ascent()};
        }
        return place->second;
    }

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

    QPrinter& printer_;
    std::size_t pages_;
    std::size_t done_ = 0;
    const Progress& progress_;
    std::map<std::tuple<std::string, double, bool>, Type> types_;
    std::map<const std::string*, QImage> images_;
    double dotsPerInch_;
    double dotsPerCentimetre_;
    QPointF corner_;
    QPainter painter_;
    bool begun_;
    bool pageBegun_ = false;
    bool breakAsked_ = false;
};

}  // namespace

bool paintDocument(QPrinter& printer, std::span<const PrintOperation> document,
                   const Progress& progress) {
    PagePainter page(printer, pagesOf(document), progress);
    for (const PrintOperation& operation : document) {
        if (!page.take(operation)) {
            return false;
        }
    }
    return page.end();
}

}  // namespace tarn
