// Drawn pages in a program without windows or display: fonts and printers come
// with a Qt application, which is made when the first thing is drawn.
#pragma once

#include <memory>

#include "platform/qt/qt_printer.h"

class QGuiApplication;

namespace tarn::print {

class WindowlessPages : public Printer {
public:
    // Null: the machine's default printer.
    explicit WindowlessPages(const std::shared_ptr<JobFiles>& files);
    ~WindowlessPages() override;
    WindowlessPages(const WindowlessPages&) = delete;
    WindowlessPages& operator=(const WindowlessPages&) = delete;

    std::optional<PrinterFailure> perform(const PrintOperation& operation) override;

private:
    std::unique_ptr<QGuiApplication> application_;
    std::unique_ptr<QtPrinter> printer_;
};

}  // namespace tarn::print
