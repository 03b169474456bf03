#include "platform/qt/qt_printer.h"

#include <QFile>
#include <QMarginsF>
#include <QPageLayout>
#include <QPageSize>
#include <QPrinter>
#include <QPrinterInfo>
#include <utility>

#include "platform/qt/page_painter.h"
#include "platform/qt/pdf_pages.h"
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

}  // namespace

QtPrinter::QtPrinter() = default;

QtPrinter::QtPrinter(std::shared_ptr<JobFiles> files)
    : files_(std::move(files)), types_(std::make_unique<PdfTypes>()) {}

QtPrinter::~QtPrinter() = default;

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

std::optional<PrinterFailure> QtPrinter::writePdf(std::span<const PrintOperation> document) {
    const auto name = files_->create("pdf");
    if (!name) {
        return unwritable(*files_);
    }
    QFile file(QString::fromStdString(nameOf(*name)));
    if (!file.open(QIODevice::WriteOnly)) {
        return unwritable(*files_);
    }
    const QSizeF sheet = QPageSize(QPageSize::A4).sizePoints();
    PdfPages pages(file, *types_,
                   orientation_ == Orientation::Landscape ? sheet.transposed() : sheet);
    const bool written = paintDocument(pages, document, progress) && file.flush();
    return written ? std::nullopt : std::optional(unwritable(*files_));
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
    if (files_) {
        return writePdf(document);
    }
    QPrinter printer(QPrinter::HighResolution);
    setUp(printer);
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
