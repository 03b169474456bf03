#include "labels/imprime_linha.h"

#include "platform/environment.h"
#include "platform/message_boxes.h"
#include "platform/printer.h"

namespace tarn::labels {
namespace {

constexpr double halfCentimetre = 0.5;

}  // namespace

void showFailure(Environment& environment, const std::optional<PrinterFailure>& failure) {
    if (failure) {
        environment.boxes.show({.text = "Descrição :" + failure->description +
                                        "\r\n   Numero :" + std::to_string(failure->number)});
    }
}

void ImprimeLinha(Environment& environment, std::string_view texto, double x, double y,
                  bool negrito, double tamanho, std::string_view fonte, bool /*reservado*/,
                  bool posicaoExata) {
    Printer& printer = environment.printer;
    printer.FontName = fonte;
    printer.FontSize = tamanho;
    printer.FontBold = negrito;
    const double indent = posicaoExata ? 0 : halfCentimetre;
    printer.CurrentY = y - indent;
    printer.CurrentX = x - indent;
    showFailure(environment, printer.Print(texto));
}

void write(Environment& environment, std::string_view texto, double x, double y, double tamanho) {
    ImprimeLinha(environment, texto, x, y, true, tamanho, "Arial", false, false);
}

void preparePage(Environment& environment) {
    environment.printer.setScaleMode(ScaleMode::Centimetres);
    environment.printer.setOrientation(Orientation::Portrait);
}

}  // namespace tarn::labels
