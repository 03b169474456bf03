// The page printer as text: each job becomes a file job-001.ops that lists what was
// asked of the printer, one operation a line, there from the first one on. A job
// that is never ended has no "enddoc" line; what follows an "enddoc" is a new job.
#pragma once

#include <memory>

#include "platform/directory/job_files.h"
#include "platform/printer.h"

namespace tarn {

class OpsPrinter : public Printer {
public:
    // `files` may be shared with the spooler that writes into the same directory.
    explicit OpsPrinter(std::shared_ptr<JobFiles> files) : files_(std::move(files)) {}

    std::optional<PrinterFailure> perform(const PrintOperation& operation) override;

private:
    bool append(const std::string& line);

    std::shared_ptr<JobFiles> files_;
    std::optional<std::filesystem::path> job_;  // none between jobs
};

}  // namespace tarn
