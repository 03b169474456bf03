#include <utility>

#include "platform/parts/printing_part.h"
#include "platform/qt/qt_printer.h"
#include "platform/system_spooler.h"

extern "C" tarn::Spooler* tarnNewSystemSpooler() {
    return tarn::makeSystemSpooler().release();
}

extern "C" tarn::Printer* tarnNewPagePrinter(std::shared_ptr<tarn::JobFiles>* files) {
    auto printer = *files ? std::make_unique<tarn::QtPrinter>(std::move(*files))
                          : std::make_unique<tarn::QtPrinter>();
    return printer.release();
}
