#include "labels/imprime_linha.h"

#include "platform/environment.h"
#include "platform/message_boxes.h"
#include "platform/printer.h"

namespace tarn::labels {
namespace {

constexpr double meioCentimetro = 0.5;

}  // namespace

void mostraFalha(Environment& ambiente, const std::optional<PrinterFailure>& falha) {
    if (falha) {
        ambiente.boxes.show({.text = "Descrição :" + falha->description +
                                     "\r\n   Numero :" + std::to_string(falha->number)});
    }
}

void ImprimeLinha(Environment& ambiente, std::string_view texto, double x, double y, bool negrito,
                  double tamanho, std::string_view fonte, bool /*reservado*/, bool posicaoExata) {
    Printer& impressora = ambiente.printer;
    impressora.FontName = fonte;
    impressora.FontSize = tamanho;
    impressora.FontBold = negrito;
    const double recuo = posicaoExata ? 0 : meioCentimetro;
    impressora.CurrentY = y - recuo;
    impressora.CurrentX = x - recuo;
    mostraFalha(ambiente, impressora.Print(texto));
}

void escreve(Environment& ambiente, std::string_view texto, double x, double y, double tamanho) {
    ImprimeLinha(ambiente, texto, x, y, true, tamanho, "Arial", false, false);
}

void preparaPagina(Environment& ambiente) {
    ambiente.printer.setScaleMode(ScaleMode::Centimetres);
    ambiente.printer.setOrientation(Orientation::Portrait);
}

}  // namespace tarn::labels
