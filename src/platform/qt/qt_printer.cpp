#include "platform/qt/qt_printer.h"

#include <QFile>
#include <QMarginsF>
#include <QPageLayout>
#include <QPageSize>
#include <QPrinter>
#include <QPrinterInfo>
#include <algorithm>
#include <span>
#include <utility>

#include "platform/qt/page_painter.h"
#include "platform/system_spooler.h"
#include "runtime/file_names.h"

namespace tarn {
namespace {

constexpr int dotsPerInch = 600;

PrinterFailure trouble(std::string description) {
    return {.number = printerTrouble, .description = std::move(description)};
}

PrinterFailure unwritable(const JobFiles& files) {
    return trouble("não foi possível gravar na pasta \"" + nameOf(files.directory()) +
                   "\". Confira a permissão e o espaço em disco.");
}

// A PDF is whole when its last line is there.
bool isWhole(const QString& pdf) {
    QFile file(pdf);
    constexpr qint64 tail = 16;
    return file.open(QIODevice::ReadOnly) && file.seek(std::max<qint64>(0, file.size() - tail)) &&
           file.readAll().contains("%%EOF");
}

std::optional<PrinterFailure> printPdf(QPrinter& printer, JobFiles& files,
                                       std::span<const PrintOperation> document,
                                       const Progress& progress) {
    const auto file = files.create("pdf");
    if (!file) {
        return unwritable(files);
    }
    const QString name = QString::fromStdString(nameOf(*file));
    printer.setOutputFileName(name);
    const bool written = paintDocument(printer, document, progress) && isWhole(name);
    return written ? std::nullopt : std::optional(unwritable(files));
}

}  // namespace

std::optional<PrinterFailure> QtPrinter::obstacle() const {
    if (files_) {
        return files_->makeDirectory() ? std::nullopt : std::optional(unwritable(*files_));
    }
    if (!systemSpoolerAnswers()) {  // the toolkit would wait a minute for it
        return trouble(std::string(spoolerIsSilent) +
                       ". Confira se está ligado e imprima de novo.");
    }
    if (QPrinterInfo::defaultPrinter().isNull()) {
        return trouble("esta máquina não tem impressora padrão. Defina uma e imprima de novo.");
    }
    return std::nullopt;
}

std::optional<PrinterFailure> QtPrinter::draw(const PrintOperation& operation) {
    if (!drawn_) {
        obstacle_ = obstacle();
        drawn_ = true;
    }
    if (!obstacle_) {
        document_.push_back(operation);
    }
    return obstacle_;
}

void QtPrinter::setUp(QPrinter& printer) const {
    if (files_) {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setPageSize(QPageSize(QPageSize::A4));
    }
    printer.setResolution(dotsPerInch);
    printer.setCreator(QStringLiteral("TarnEmissao"));
    printer.setDocName(QStringLiteral("TarnEmissao"));
    printer.setPageOrientation(orientation_ == Orientation::Landscape ? QPageLayout::Landscape
                                                                      : QPageLayout::Portrait);
    printer.setFullPage(true);
    // On Windows a full page keeps the margins in front of its corner all the same.
    printer.setPageMargins({0, 0, 0, 0});
    printer.setCopyCount(copies_);
}

std::optional<PrinterFailure> QtPrinter::end() {
    const std::vector<PrintOperation> document = std::exchange(document_, {});
    std::optional<PrinterFailure> met = std::exchange(obstacle_, std::nullopt);
    if (!std::exchange(drawn_, false) || met) {
        return met;
    }
    if (const auto now = obstacle()) {  // the clerk may have waited before a box meanwhile
        return now;
    }
    QPrinter printer(QPrinter::HighResolution);
    setUp(printer);
    if (files_) {
        return printPdf(printer, *files_, document, progress);
    }
    if (!paintDocument(printer, document, progress)) {
        return trouble("a impressora \"" + printer.printerName().toStdString() +
                       "\" não aceitou o trabalho. Confira se está ligada e imprima de novo.");
    }
    return std::nullopt;
}

std::string QtPrinter::name() {
    return files_ ? nameOf(files_->directory()) : QPrinterInfo::defaultPrinterName().toStdString();
}

std::optional<PrinterFailure> QtPrinter::perform(const PrintOperation& operation) {
    if (const auto* orientation = std::get_if<Orientation>(&operation)) {
        orientation_ = *orientation;
    } else if (const auto* copies = std::get_if<Copies>(&operation)) {
        copies_ = copies->count;
    } else if (std::holds_alternative<DocumentEnd>(operation)) {
        return end();
    } else if (std::holds_alternative<PageBreak>(operation)) {
        document_.push_back(operation);
    } else if (draws(operation)) {
        return draw(operation);
    }
    return std::nullopt;
}

}  // namespace tarn
