// Drawn pages in a program without windows or display: fonts and printers come
// with a Qt application, which is made when the first thing is drawn.
#pragma once

#include <memory>

#include "platform/qt/qt_printer.h"

class QGuiApplication;

namespace tarn::imprime {

class PaginasSemJanela : public Printer {
public:
    // Null: the machine's default printer.
    explicit PaginasSemJanela(const std::shared_ptr<JobFiles>& files);
    ~PaginasSemJanela() override;
    PaginasSemJanela(const PaginasSemJanela&) = delete;
    PaginasSemJanela& operator=(const PaginasSemJanela&) = delete;

    std::optional<PrinterFailure> perform(const PrintOperation& operation) override;

private:
    std::unique_ptr<QGuiApplication> aplicacao_;
    std::unique_ptr<QtPrinter> impressora_;
};

}  // namespace tarn::imprime
