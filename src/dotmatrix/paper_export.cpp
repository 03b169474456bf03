#include "dotmatrix/paper_export.h"

#include <QFileInfo>
#include <QImage>
#include <QImageWriter>
#include <QPainter>
#include <QSaveFile>
#include <algorithm>
#include <cmath>

#include "dotmatrix/paper_text.h"
#include "dotmatrix/pdf_canvas.h"

namespace tarn::dotmatrix {

namespace {

constexpr double lowestPage = 1.0;  // points; a form cut short may be lower than a page can be

double heightInPoints(const Form& form) {
    return static_cast<double>(form.height) * pointsPerInch / static_cast<double>(unitsPerInch);
}

bool goesOn(const WriteProgress& progress, std::size_t form) {
    return !progress || progress(form);
}

QString stopped() {
    return QStringLiteral("interrompido");
}

// What failed, empty for nothing.
QString paintPages(PdfCanvas& canvas, const PaperPages& paper, const PaperPainter& drawing,
                   const WriteProgress& progress) {
    for (std::size_t form = 0; form < paper.count; ++form) {
        if (!goesOn(progress, form)) {
            return stopped();
        }
        const auto page = paper.page(form);
        canvas.beginPage(pageSizeInPoints(drawing.sheetOf(*page), page->shape));
        drawing.paintForm(canvas, *page);
        if (!canvas.endPage()) {
            return QStringLiteral("o arquivo não aceita páginas");
        }
    }
    return {};
}

QImage pictureOf(const FormPage& page, const PaperPainter& drawing) {
    constexpr double dotsPerPoint = pictureDotsPerInch / pointsPerInch;
    const int width = qRound(drawing.sheetOf(page).width * pictureDotsPerInch);
    const int height = std::max(1, qRound(heightInPoints(page.shape) * dotsPerPoint));
    QImage image(width, height, QImage::Format_RGB32);
    if (image.isNull()) {
        return image;
    }
    constexpr double inchesPerMetre = 1000 / 25.4;
    image.setDotsPerMeterX(qRound(pictureDotsPerInch * inchesPerMetre));
    image.setDotsPerMeterY(image.dotsPerMeterX());
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.scale(dotsPerPoint, dotsPerPoint);
    drawing.paintForm(painter, page);
    return image;
}

std::optional<QString> commit(QSaveFile& file) {
    if (!file.commit()) {
        return file.errorString();
    }
    return std::nullopt;
}

}  // namespace

QSizeF pageSizeInPoints(const Sheet& sheet, const Form& form) {
    return {sheet.width * pointsPerInch, std::max(lowestPage, std::round(heightInPoints(form)))};
}

std::optional<QString> writePdf(const PaperPages& paper, const PaintOptions& options,
                                const QString& file, const WriteProgress& progress) {
    QSaveFile out(file);
    if (!out.open(QIODevice::WriteOnly)) {
        return out.errorString();
    }
    const PaperPainter drawing(options);
    PdfCanvas canvas(out, drawing.print());
    QString failure = paintPages(canvas, paper, drawing, progress);
    if (failure.isEmpty() &&
        !canvas.finish(QFileInfo(file).completeBaseName(), QStringLiteral("tarnimpressora"))) {
        failure = QStringLiteral("o arquivo não foi terminado");
    }
    if (!failure.isEmpty()) {
        return out.error() == QFileDevice::NoError ? failure : out.errorString();
    }
    return commit(out);
}

QString pictureName(const QString& file, std::size_t form) {
    if (form == 0) {
        return file;
    }
    const QFileInfo info(file);
    const QString suffix = info.suffix().isEmpty() ? QString() : QLatin1Char('.') + info.suffix();
    const QString stem = file.left(file.size() - suffix.size());
    return stem + QStringLiteral("-%1").arg(form + 1, 3, 10, QLatin1Char('0')) + suffix;
}

std::optional<QString> writePng(const PaperPages& paper, const PaintOptions& options,
                                const QString& file, const WriteProgress& progress) {
    const PaperPainter drawing(options);
    for (std::size_t form = 0; form < paper.count; ++form) {
        if (!goesOn(progress, form)) {
            return stopped();
        }
        QSaveFile out(pictureName(file, form));
        if (!out.open(QIODevice::WriteOnly)) {
            return out.errorString();
        }
        QImageWriter writer(&out, "png");
        if (!writer.write(pictureOf(*paper.page(form), drawing))) {
            return writer.errorString();
        }
        if (auto failure = commit(out)) {
            return failure;
        }
    }
    return std::nullopt;
}

std::optional<QString> writeText(const PaperPages& paper, const QString& file) {
    QSaveFile out(file);
    if (!out.open(QIODevice::WriteOnly)) {
        return out.errorString();
    }
    std::string text;
    for (std::size_t form = 0; form < paper.count; ++form) {
        text.assign(form > 0 ? "\f" : "");
        appendText(text, *paper.page(form));
        out.write(text.data(), static_cast<qint64>(text.size()));
    }
    return commit(out);
}

}  // namespace tarn::dotmatrix
