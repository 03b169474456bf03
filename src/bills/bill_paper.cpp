#include "bills/bill_paper.h"

#include <utility>

namespace tarn {
namespace {

constexpr double halfCentimetre = 0.5;

}  // namespace

void BillPage::prepare() {
    printer_.setScaleMode(ScaleMode::Centimetres);
    printer_.setOrientation(Orientation::Portrait);
    printer_.setCopies(1);
}

void BillPage::ImprimeLinha(std::string_view text, double x, double y, double size, bool bold,
                            std::string_view font) {
    printer_.FontName = font;
    printer_.FontSize = size;
    printer_.FontBold = bold;
    printer_.CurrentX = x - halfCentimetre;
    printer_.CurrentY = y - halfCentimetre;
    printer_.Print(text);  // a failing text drops out in silence: decision D97
}

void BillPage::drawLine(double x1, double y1, double x2, double y2, int width) {
    printer_.DrawWidth = width;
    keep(printer_.Line(x1, y1, x2, y2));
}

void BillPage::picture(const std::optional<Picture>& which, double x, double y) {
    if (which) {
        keep(printer_.PaintPicture(*which, x, y));
    }
}

void BillPage::newPage() {
    keep(printer_.NewPage());
}

void BillPage::finish(const Progress& progress) {
    printer_.progress = progress;
    keep(printer_.EndDoc());
    printer_.progress = nullptr;
}

void BillPage::keep(const std::optional<PrinterFailure>& failure) {
    if (!failure_) {
        failure_ = failure;
    }
}

}  // namespace tarn
