#include "printer/sheets/sheet_painter.h"

#include <algorithm>
#include <cmath>

#include "dotmatrix/paper_canvas.h"

namespace tarn::dotmatrix {

namespace {

constexpr double mostPixels = 16e6;  // A4 at more than 400 %

}  // namespace

SheetPainter::SheetPainter(QString program) : name_(std::move(program)) {
    decoders_.setMaxThreadCount(1);
}

double SheetPainter::bearableDots(double dots, const QSizeF& points) {
    const double inches = points.width() * points.height() / (pointsPerInch * pointsPerInch);
    return std::max(1.0, std::min(dots, std::floor(std::sqrt(mostPixels / inches))));
}

void SheetPainter::paint(const SheetWanted& wanted) {
    busy_ = true;
    const QString page = QString::number(wanted.page);
    program_.run(name_,
                 {QStringLiteral("-f"), page, QStringLiteral("-l"), page, QStringLiteral("-r"),
                  QString::number(wanted.dots, 'f', 3), wanted.path},
                 [this, wanted](PdfProgram::End end, const QByteArray& output) {
                     end == PdfProgram::End::Good ? decode(wanted, output) : finish(wanted, {});
                 });
}

void SheetPainter::decode(const SheetWanted& wanted, const QByteArray& bytes) {
    decoders_.start([this, wanted, bytes] {
        const QImage picture = QImage::fromData(bytes, "PPM").convertToFormat(QImage::Format_RGB32);
        QMetaObject::invokeMethod(
            this, [this, wanted, picture] { finish(wanted, picture); }, Qt::QueuedConnection);
    });
}

void SheetPainter::finish(const SheetWanted& wanted, const QImage& picture) {
    busy_ = false;
    emit painted(wanted, picture);
}

}  // namespace tarn::dotmatrix
