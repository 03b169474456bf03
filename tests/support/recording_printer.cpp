#include "tests/support/recording_printer.h"

#include <algorithm>

namespace tarn::test {

RecordingPrinter::RecordingPrinter() = default;
RecordingPrinter::~RecordingPrinter() = default;

std::optional<PrinterFailure> RecordingPrinter::perform(const PrintOperation& operation) {
    operations.push_back(operation);
    const bool refused = operations.size() - 1 == failAt || (refuses && refuses(operation));
    return refused ? std::optional(failure) : std::nullopt;
}

bool RecordingPrinter::ended() const {
    return !operations.empty() && std::holds_alternative<DocumentEnd>(operations.back());
}

std::vector<std::string> RecordingPrinter::lines() const {
    std::vector<std::string> all;
    for (const PrintOperation& operation : operations) {
        all.push_back(operationLine(operation));
    }
    std::erase(all, "");
    return all;
}

bool isNoText(const PrintOperation& operation) {
    return !std::holds_alternative<DrawnText>(operation);
}

}  // namespace tarn::test
