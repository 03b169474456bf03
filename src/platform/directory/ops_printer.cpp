#include "platform/directory/ops_printer.h"

#include <fstream>

#include "runtime/file_names.h"

namespace tarn {

bool OpsPrinter::append(const std::string& line) {
    if (!job_) {
        job_ = files_->create("ops");
    }
    if (!job_) {
        return false;
    }
    std::ofstream out(*job_, std::ios::binary | std::ios::app);
    out << line << '\n';
    out.close();
    return out.good();
}

std::optional<PrinterFailure> OpsPrinter::perform(const PrintOperation& operation) {
    const std::string line = operationLine(operation);
    if (line.empty()) {
        return std::nullopt;
    }
    const bool written = append(line);
    if (std::holds_alternative<DocumentEnd>(operation)) {
        job_.reset();
    }
    if (written) {
        return std::nullopt;
    }
    return PrinterFailure{.number = printerTrouble,
                          .description = "não foi possível gravar na pasta \"" +
                                         nameOf(files_->directory()) +
                                         "\". Confira a permissão e o espaço em disco."};
}

}  // namespace tarn
