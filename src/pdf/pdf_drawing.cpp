#include "pdf/pdf_drawing.h"

#include <QBuffer>
#include <QDateTime>
#include <QImageWriter>
#include <utility>

namespace tarn::pdf {

namespace {

constexpr int jpegQuality = 94;

// Control points of the four curves that make a circle, in radii from its edge.
constexpr double circleControl = 0.5522847498;

QByteArray boxOf(const QSizeF& size) {
    QByteArray box = "[0 0 ";
    appendNumber(box, size.width());
    box += ' ';
    appendNumber(box, size.height());
    return box + ']';
}

}  // namespace

PdfDrawing::PdfDrawing(QIODevice& out)
    : file_(out),
      tree_(file_.reserve()),
      resources_(file_.reserve()),
      backgroundResources_(file_.reserve()) {}

void PdfDrawing::number(double value) {
    appendNumber(content_.text, value);
    content_.text += ' ';
}

void PdfDrawing::point(const QPointF& at) {
    number(at.x());
    number(page_.height() - at.y());
}

void PdfDrawing::colour(const QColor& colour, const char* operation) {
    const int alpha = colour.alpha();
    if (content_.alpha != alpha) {
        if (const auto [state, isNew] = states_.try_emplace(alpha, 0); isNew) {
            state->second = file_.reserve();
        }
        content_.text += pdfName('G', alpha) + " gs\n";
        content_.alpha = alpha;
    }
    number(colour.redF());
    number(colour.greenF());
    number(colour.blueF());
    content_.text += operation;
}

void PdfDrawing::fillWith(const QColor& filling) {
    if (content_.alpha != filling.alpha() || content_.filling != filling.rgba()) {
        colour(filling, "rg\n");
        content_.filling = filling.rgba();
    }
}

void PdfDrawing::strokeWith(const PdfStroke& stroke) {
    colour(stroke.colour, "RG\n");
    number(stroke.width);
    content_.text += stroke.flat ? "w 0 J 2 j [" : "w 2 J 2 j [";
    if (stroke.dash > 0) {
        number(stroke.dash);
    }
    content_.text += "]0 d\n";
}

void PdfDrawing::rectangle(const QRectF& area) {
    point(area.bottomLeft());
    number(area.width());
    number(area.height());
    content_.text += "re ";
}

void PdfDrawing::fill(const QRectF& area, const QColor& colour) {
    endText();
    fillWith(colour);
    rectangle(area);
    content_.text += "f\n";
}

void PdfDrawing::frame(const QRectF& area, const PdfStroke& stroke) {
    endText();
    strokeWith(stroke);
    rectangle(area);
    content_.text += "S\n";
}

void PdfDrawing::disc(const QPointF& centre, double radius, const QColor& filling,
                      const PdfStroke& edge) {
    endText();
    fillWith(filling);
    strokeWith(edge);
    const auto at = [&](double x, double y) { point(centre + QPointF(x, y) * radius); };
    at(1, 0);
    content_.text += "m\n";
    constexpr double c = circleControl;
    for (const auto& [x, y] : {std::pair{1, 0}, {0, -1}, {-1, 0}, {0, 1}}) {
        // The next quarter ends where this one's tangent points to.
        const int nextX = y;
        const int nextY = -x;
        at(x + c * nextX, y + c * nextY);
        at(nextX + c * x, nextY + c * y);
        at(nextX, nextY);
        content_.text += "c\n";
    }
    content_.text += "b\n";
}

void PdfDrawing::line(const QPointF& from, const QPointF& to, const PdfStroke& stroke) {
    endText();
    strokeWith(stroke);
    point(from);
    content_.text += "m ";
    point(to);
    content_.text += "l S\n";
}

void PdfDrawing::picture(const QRectF& area, const QImage& image, bool smooth) {
    if (image.isNull()) {
        return;
    }
    endText();
    const auto [place, isNew] = pictures_.try_emplace(image.cacheKey(), 0);
    if (isNew) {
        place->second = writePicture(image, smooth);
    }
    content_.text += "q ";
    number(area.width());
    content_.text += "0 0 ";
    number(area.height());
    point(area.bottomLeft());
    content_.text += "cm" + pdfName('I', place->second) + " Do Q\n";
}

int PdfDrawing::writePlane(const QImage& plane, const QByteArray& dictionary) {
    QByteArray rows;
    const qsizetype rowBytes = qsizetype{plane.width()} * plane.depth() / 8;
    for (int row = 0; row < plane.height(); ++row) {
        rows.append(reinterpret_cast<const char*>(plane.constScanLine(row)), rowBytes);
    }
    rows = deflated(rows);
    const QByteArray heading = "/Type/XObject/Subtype/Image/BitsPerComponent 8" + dictionary +
                               "/Width " + QByteArray::number(plane.width()) + "/Height " +
                               QByteArray::number(plane.height()) + "/ColorSpace" +
                               (plane.depth() == 8 ? "/DeviceGray" : "/DeviceRGB");
    QBuffer jpeg;
    QImageWriter writer(&jpeg, "jpg");
    writer.setQuality(jpegQuality);
    const bool isMask = plane.format() == QImage::Format_Alpha8;
    const bool smaller = !isMask && writer.write(plane) && jpeg.size() < rows.size();
    const int object = file_.reserve();
    file_.writeEncoded(object, heading, smaller ? "/DCTDecode" : "/FlateDecode",
                       smaller ? jpeg.data() : rows);
    return object;
}

int PdfDrawing::writePicture(const QImage& image, bool smooth) {
    QByteArray looks = smooth ? "/Interpolate true" : "";
    if (image.hasAlphaChannel()) {
        const QImage opacity = image.convertToFormat(QImage::Format_Alpha8);
        looks += "/SMask " + pdfReference(writePlane(opacity, looks));
    }
    const bool grey = image.isGrayscale();
    return writePlane(
        image.convertToFormat(grey ? QImage::Format_Grayscale8 : QImage::Format_RGB888), looks);
}

PdfFont& PdfDrawing::fontOf(const QRawFont& face) {
    const auto known = fontsByFace_.find(faceKey(face));
    return known == fontsByFace_.end() ? fontOf(std::make_shared<const PdfFace>(face))
                                       : *known->second;
}

PdfFont& PdfDrawing::fontOf(const SharedPdfFace& face) {
    const auto [place, isNew] = fontsByFace_.try_emplace(face->key, nullptr);
    if (isNew) {
        place->second =
            &fonts_.emplace_back(face, static_cast<int>(fonts_.size()), file_.reserve());
    }
    return *place->second;
}

int PdfDrawing::store(const std::function<void()>& draw) {
    Content page = std::exchange(content_, Content{});
    draw();
    endText();
    stored_.push_back(file_.reserve());
    file_.writeStream(stored_.back(),
                      "/Type/XObject/Subtype/Form/BBox" + boxOf(page_) + "/Resources " +
                          pdfReference(backgroundResources_),
                      content_.text);
    content_ = std::move(page);
    return stored_.back();
}

void PdfDrawing::show(int stored) {
    endText();
    content_.text += pdfName('B', stored) + " Do\n";
}

void PdfDrawing::beginPage(const QSizeF& points) {
    page_ = points;
    firstPage_ = pages_.empty() ? points : firstPage_;
    content_ = {};
}

bool PdfDrawing::endPage() {
    endText();
    const int content = file_.reserve();
    file_.writeStream(content, {}, content_.text);
    pages_.push_back(file_.reserve());
    QByteArray page = "<</Type/Page/Parent " + pdfReference(tree_);
    if (page_ != firstPage_) {
        page += "/MediaBox" + boxOf(page_);
    }
    file_.write(pages_.back(), page + "/Contents " + pdfReference(content) + ">>");
    return file_.taken();
}

bool PdfDrawing::finish(const QString& title, const QString& creator) {
    std::vector<int> fonts;
    for (const PdfFont& font : fonts_) {
        if (font.canBeEmbedded()) {
            font.write(file_);
            fonts.push_back(font.object());
        }
    }
    writeResources(fonts);
    QByteArray kids;
    for (const int page : pages_) {
        kids += pdfReference(page) + ' ';
    }
    file_.write(tree_, "<</Type/Pages/MediaBox" + boxOf(firstPage_) + "/Resources " +
                           pdfReference(resources_) + "/Count " +
                           QByteArray::number(static_cast<qulonglong>(pages_.size())) + "/Kids[" +
                           kids + "]>>");
    const int catalogue = file_.reserve();
    file_.write(catalogue, "<</Type/Catalog/Pages " + pdfReference(tree_) + ">>");
    const int information = file_.reserve();
    const QByteArray now =
        QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMddhhmmss")).toLatin1();
    file_.write(information, "<</Title" + pdfText(title) + "/Creator" + pdfText(creator) +
                                 "/CreationDate(D:" + now + "Z)>>");
    file_.finish(catalogue, information);
    return file_.taken();
}

void PdfDrawing::writeResources(const std::vector<int>& fonts) {
    QByteArray states;
    for (const auto& [alpha, object] : states_) {
        QByteArray opacity;
        appendNumber(opacity, alpha / 255.0);
        file_.write(object, "<</SA true/ca " + opacity + "/CA " + opacity + ">>");
        states += pdfName('G', alpha) + ' ' + pdfReference(object);
    }
    QByteArray common = "<</ExtGState<<" + states + ">>/Font<<";
    for (const int font : fonts) {
        common += pdfName('F', font) + ' ' + pdfReference(font);
    }
    common += ">>/XObject<<";
    for (const auto& [key, picture] : pictures_) {
        common += pdfName('I', picture) + ' ' + pdfReference(picture);
    }
    // A background names no background.
    file_.write(backgroundResources_, common + ">>>>");
    for (const int drawing : stored_) {
        common += pdfName('B', drawing) + ' ' + pdfReference(drawing);
    }
    file_.write(resources_, common + ">>>>");
}

}  // namespace tarn::pdf
