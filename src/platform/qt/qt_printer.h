// The page printer over Qt: the machine's default printer, or a directory in which
// each printed document becomes a PDF file on A4. Nothing is rendered before the
// document ends, so a document given up costs neither paper nor a job's number.
// Needs a QGuiApplication from the first thing drawn on.
#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "platform/directory/job_files.h"
#include "platform/printer.h"

class QPrinter;

namespace tarn {

class PdfTypes;

class QtPrinter : public Printer {
public:
    // The machine's default printer, on its own paper.
    QtPrinter();
    // `files` may be shared with the spooler that writes into the same directory.
    explicit QtPrinter(std::shared_ptr<JobFiles> files);
    ~QtPrinter() override;
    QtPrinter(const QtPrinter&) = delete;
    QtPrinter& operator=(const QtPrinter&) = delete;

    std::string name() override;
    std::optional<PrinterFailure> perform(const PrintOperation& operation) override;

private:
    std::optional<PrinterFailure> draw(const PrintOperation& operation);
    std::optional<PrinterFailure> end();
    std::optional<PrinterFailure> obstacle() const;
    void setUp(QPrinter& printer) const;
    std::optional<PrinterFailure> writePdf(std::span<const PrintOperation> document);

    std::shared_ptr<JobFiles> files_;  // null: the machine's printer
    std::unique_ptr<PdfTypes> types_;  // of all documents; null without files_
    Orientation orientation_ = Orientation::Portrait;
    int copies_ = 1;
    std::vector<PrintOperation> document_;    // since the last end
    bool drawn_ = false;                      // whether something in it begins a page
    std::optional<PrinterFailure> obstacle_;  // met when the document began
};

}  // namespace tarn
