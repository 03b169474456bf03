#include "dotmatrix/paper_export.h"

#include <QFileInfo>
#include <QImage>
#include <QImageWriter>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <algorithm>
#include <cmath>

#include "dotmatrix/paper_text.h"

namespace tarn::dotmatrix {

namespace {

constexpr int kPdfDotsPerInch = 1200;
constexpr double kLowestPage = 1.0;  // points; a form cut short may be lower than a page can be

double heightInPoints(const Form& form) {
    return static_cast<double>(form.height) * kPointsPerInch / static_cast<double>(kUnitsPerInch);
}

QPageSize pageSize(const Sheet& sheet, const Form& form) {
    return QPageSize(QSizeF(sheet.width * kPointsPerInch,
                            std::max(kLowestPage, std::round(heightInPoints(form)))),
                     QPageSize::Point, QString(), QPageSize::ExactMatch);
}

bool paintPages(QPdfWriter& writer, const ContinuousPaper& paper, const PaperPainter& drawing) {
    QPainter painter;
    for (std::size_t form = 0; form < paper.printedForms(); ++form) {
        writer.setPageSize(pageSize(drawing.sheet(), paper.forms()[form]));
        if (!(form == 0 ? painter.begin(&writer) : writer.newPage())) {
            return false;
        }
        painter.save();
        painter.scale(kPdfDotsPerInch / kPointsPerInch, kPdfDotsPerInch / kPointsPerInch);
        drawing.paintForm(painter, paper, form);
        painter.restore();
    }
    return painter.end();
}

QImage pictureOf(const ContinuousPaper& paper, const PaperPainter& drawing, std::size_t form) {
    constexpr double kDotsPerPoint = kPictureDotsPerInch / kPointsPerInch;
    const int width = qRound(drawing.sheet().width * kPictureDotsPerInch);
    const int height = std::max(1, qRound(heightInPoints(paper.forms()[form]) * kDotsPerPoint));
    QImage image(width, height, QImage::Format_RGB32);
    if (image.isNull()) {
        return image;
    }
    constexpr double kInchesPerMetre = 1000 / 25.4;
    image.setDotsPerMeterX(qRound(kPictureDotsPerInch * kInchesPerMetre));
    image.setDotsPerMeterY(image.dotsPerMeterX());
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.scale(kDotsPerPoint, kDotsPerPoint);
    drawing.paintForm(painter, paper, form);
    return image;
}

std::optional<QString> commit(QSaveFile& file) {
    if (!file.commit()) {
        return file.errorString();
    }
    return std::nullopt;
}

}  // namespace

std::optional<QString> writePdf(const ContinuousPaper& paper, const PaintOptions& options,
                                const QString& file) {
    QSaveFile out(file);
    if (!out.open(QIODevice::WriteOnly)) {
        return out.errorString();
    }
    {
        QPdfWriter writer(&out);
        writer.setResolution(kPdfDotsPerInch);
        writer.setPageMargins(QMarginsF(0, 0, 0, 0));
        writer.setCreator(QStringLiteral("tarnimpressora"));
        writer.setTitle(QFileInfo(file).completeBaseName());
        const PaperPainter drawing(sheetFor(paper.contentWidth()), options);
        if (!paintPages(writer, paper, drawing)) {
            return out.errorString();
        }
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

std::optional<QString> writePng(const ContinuousPaper& paper, const PaintOptions& options,
                                const QString& file) {
    const PaperPainter drawing(sheetFor(paper.contentWidth()), options);
    for (std::size_t form = 0; form < paper.printedForms(); ++form) {
        QSaveFile out(pictureName(file, form));
        if (!out.open(QIODevice::WriteOnly)) {
            return out.errorString();
        }
        QImageWriter writer(&out, "png");
        if (!writer.write(pictureOf(paper, drawing, form))) {
            return writer.errorString();
        }
        if (auto failure = commit(out)) {
            return failure;
        }
    }
    return std::nullopt;
}

std::optional<QString> writeText(const ContinuousPaper& paper, const QString& file) {
    QSaveFile out(file);
    if (!out.open(QIODevice::WriteOnly)) {
        return out.errorString();
    }
    const std::string text = textOf(paper);
    out.write(text.data(), static_cast<qint64>(text.size()));
    return commit(out);
}

}  // namespace tarn::dotmatrix
