#include "bills/bill_paper.h"

#include <utility>

namespace tarn {
namespace {

constexpr double meioCentimetro = 0.5;

}  // namespace

void Papel::prepara() {
    impressora_.setScaleMode(ScaleMode::Centimetres);
    impressora_.setOrientation(Orientation::Portrait);
    impressora_.setCopies(1);
}

void Papel::ImprimeLinha(std::string_view texto, double x, double y, double tamanho, bool negrito,
                         std::string_view fonte) {
    impressora_.FontName = fonte;
    impressora_.FontSize = tamanho;
    impressora_.FontBold = negrito;
    impressora_.CurrentX = x - meioCentimetro;
    impressora_.CurrentY = y - meioCentimetro;
    impressora_.Print(texto);
}

void Papel::risca(double x1, double y1, double x2, double y2, int largura) {
    impressora_.DrawWidth = largura;
    guarda(impressora_.Line(x1, y1, x2, y2));
}

void Papel::figura(const std::optional<Picture>& qual, double x, double y) {
    if (qual) {
        guarda(impressora_.PaintPicture(*qual, x, y));
    }
}

void Papel::novaPagina() {
    guarda(impressora_.NewPage());
}

void Papel::termina(const Progress& progress) {
    impressora_.progress = progress;
    guarda(impressora_.EndDoc());
    impressora_.progress = nullptr;
}

void Papel::guarda(const std::optional<PrinterFailure>& falha) {
    if (!falha_) {
        falha_ = falha;
    }
}

}  // namespace tarn
