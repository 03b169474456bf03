// A page printer that prints nothing: it records every operation in order and
// refuses where it is told to.
#pragma once

#include <cstddef>
#include <functional>
#include <limits>
#include <optional>
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

    RecordingPrinter();
    ~RecordingPrinter() override;

    std::optional<PrinterFailure> perform(const PrintOperation& operation) override;

    bool ended() const;
    // One line an operation that has one.
    std::vector<std::string> lines() const;
};

// For `refuses`: what is no text.
bool isNoText(const PrintOperation& operation);

}  // namespace tarn::test
