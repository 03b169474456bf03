// The page printer over Qt: the machine's default printer, or a directory in which
// each printed document becomes a PDF file on A4. Nothing is rendered before the
// document ends, so a document given up costs neither paper nor a job's number.
// Needs a QGuiApplication from the first thing drawn on.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/directory/job_files.h"
#include "platform/printer.h"

class QPrinter;

namespace tarn {

class QtPrinter : public Printer {
public:
    // The machine's default printer, on its own paper.
    QtPrinter() = default;
    // `files` may be shared with the spooler that writes into the same directory.
    explicit QtPrinter(std::shared_ptr<JobFiles> files) : files_(std::move(files)) {}

    std::string name() override;
    std::optional<PrinterFailure> perform(const PrintOperation& operation) override;

private:
    std::optional<PrinterFailure> draw(const PrintOperation& operation);
    std::optional<PrinterFailure> end();
    std::optional<PrinterFailure> obstacle() const;
    void setUp(QPrinter& printer) const;

    std::shared_ptr<JobFiles> files_;  // null: the machine's printer
    Orientation orientation_ = Orientation::Portrait;
    int copies_ = 1;
    std::vector<PrintOperation> document_;    // since the last end
    bool drawn_ = false;                      // whether something in it begins a page
    std::optional<PrinterFailure> obstacle_;  // met when the document began
};

}  // namespace tarn
