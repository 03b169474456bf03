// A page printer that prints nothing: it records every operation in order and
// refuses where it is told to.
#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <limits>
#include <string>
#include <vector>

#include "platform/printer.h"

namespace tarn::test {

class RecordingPrinter : public Printer {
public:
    static constexpr std::size_t never = std::numeric_limits<std::size_t>::max();

    // What to answer and where: index of the operation, from 0.
    std::size_t failAt = never;
    std::function<bool(const PrintOperation&)> refuses;  // further ones, if set
    PrinterFailure failure{.number = printerTrouble, .description = "impressora sem papel"};

    std::vector<PrintOperation> operations;  // refused ones included

    std::optional<PrinterFailure> perform(const PrintOperation& operation) override {
        operations.push_back(operation);
        const bool refused = operations.size() - 1 == failAt || (refuses && refuses(operation));
        return refused ? std::optional(failure) : std::nullopt;
    }

    bool ended() const {
        return !operations.empty() && std::holds_alternative<DocumentEnd>(operations.back());
    }
    // One line an operation that has one.
    std::vector<std::string> lines() const {
        std::vector<std::string> all;
        for (const PrintOperation& operation : operations) {
            all.push_back(operationLine(operation));
        }
        std::erase(all, "");
        return all;
    }
};

// For `refuses`: what is no text.
inline bool isNoText(const PrintOperation& operation) {
    return !std::holds_alternative<DrawnText>(operation);
}

}  // namespace tarn::test
