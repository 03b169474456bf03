// Printers that take everything and do nothing with it.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "platform/printer.h"
#include "platform/spooler.h"

namespace tarn::bench {

class CountingSpooler : public Spooler {
public:
    std::string defaultPrinter() override { return "nenhuma"; }
    bool openPrinter(const std::string&) override { return true; }
    bool startDocument(const JobDescription&) override { return true; }
    bool startPage() override { return true; }
    std::size_t write(std::string_view bytes) override {
        bytes_ += bytes.size();
        return bytes.size();
    }
    bool endPage() override { return true; }
    bool endDocument() override { return true; }
    bool closePrinter() override { return true; }

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
