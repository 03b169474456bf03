#include "common/drawn_run.h"

#include "common/drawn_text.h"
#include "platform/environment.h"

namespace tarn {

DrawnRun::DrawnRun(Environment& environment) : environment_(environment) {
    printer().setScaleMode(ScaleMode::Centimetres);
    printer().setOrientation(Orientation::Portrait);
}

Printer& DrawnRun::printer() {
    return environment_.printer;
}

void DrawnRun::ImprimeLinha(std::string_view text, double x, double y, double size) {
    const auto failure = drawText(printer(), text, x, y, {.size = size});
    if (!failure) {
        texts_ = Texts::Taken;
        return;
    }
    if (texts_ == Texts::None) {
        texts_ = Texts::NoneTaken;
    }
    showFailure(environment_, *failure, documentLineEnd);
}

void DrawnRun::check(const std::optional<PrinterFailure>& failure) {
    if (failure && !told_) {
        told_ = true;
        failed_ = true;
        showFailure(environment_, *failure, documentLineEnd);
    }
}

void DrawnRun::newPage() {
    check(printer().NewPage());
}

void DrawnRun::endDocument(const Progress& progress, std::size_t pages) {
    if (progress) {
        printer().progress = [&progress, &pages](std::size_t done, std::size_t total) {
            pages = total;
            progress(done, total);
        };
    }
    const auto failure = printer().EndDoc();
    printer().progress = nullptr;
    if (progress && pages > 0) {
        progress(pages, pages);
    }
    check(failure);
    told_ = false;
}

}  // namespace tarn
