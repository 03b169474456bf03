// One run on the page printer, as the pages of bills and receipts draw on it.
#pragma once

#include <optional>
#include <string_view>

#include "platform/printer.h"

namespace tarn {

class BillPage {
public:
    explicit BillPage(Printer& printer) : printer_(printer) {}

    // Centimetres, portrait, one copy.
    void prepare();

    // Half a centimetre left of and above the point, size in points. A text that fails
    // is dropped and the page goes on.
    void ImprimeLinha(std::string_view text, double x, double y, double size, bool bold = true,
                      std::string_view font = "Arial");
    // At the points as they are, in dots.
    void drawLine(double x1, double y1, double x2, double y2, int width);
    // At the point as it is; nothing for no picture.
    void picture(const std::optional<Picture>& which, double x, double y);

    void newPage();
    // Prints the document; while it does so `progress` is called.
    void finish(const Progress& progress);

    // The first thing other than a text that failed.
    const std::optional<PrinterFailure>& failure() const { return failure_; }

private:
    void keep(const std::optional<PrinterFailure>& failure);

    Printer& printer_;
    std::optional<PrinterFailure> failure_;
};

}  // namespace tarn
