// Printers that take everything and do nothing with it.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "platform/no_paper.h"
#include "platform/printer.h"

namespace tarn::bench {

class CountingSpooler : public NoPaper {
public:
    std::size_t write(std::string_view bytes) override {
        bytes_ += bytes.size();
        return bytes.size();
    }

    std::size_t bytes() const { return bytes_; }

private:
    std::size_t bytes_ = 0;
};

class CountingPrinter : public Printer {
public:
    std::optional<PrinterFailure> perform(const PrintOperation&) override {
        ++operations_;
        return std::nullopt;
    }

private:
    std::size_t operations_ = 0;
};

}  // namespace tarn::bench
