// One run on the page printer, as the pages of bills and receipts draw on it.
#pragma once

#include <optional>
#include <string_view>

#include "platform/printer.h"

namespace tarn {

class Papel {
public:
    explicit Papel(Printer& impressora) : impressora_(impressora) {}

    // Centimetres, portrait, one copy.
    void prepara();

    // Half a centimetre left of and above the point, size in points. A text that fails
    // is dropped and the page goes on.
    void ImprimeLinha(std::string_view texto, double x, double y, double tamanho,
                      bool negrito = true, std::string_view fonte = "Arial");
    // At the points as they are, in dots.
    void risca(double x1, double y1, double x2, double y2, int largura);
    // At the point as it is; nothing for no picture.
    void figura(const std::optional<Picture>& qual, double x, double y);

    void novaPagina();
    // Prints the document; while it does so `progress` is told.
    void termina(const Progress& progress);

    // The first thing other than a text that failed.
    const std::optional<PrinterFailure>& falha() const { return falha_; }

private:
    void guarda(const std::optional<PrinterFailure>& falha);

    Printer& impressora_;
    std::optional<PrinterFailure> falha_;
};

}  // namespace tarn
