#include "notes/imprime_texto_em.h"

#include "common/printer_failure.h"
#include "platform/environment.h"
#include "platform/printer.h"

namespace tarn {
namespace {

constexpr float halfCentimetre = 0.5F;

}  // namespace

void ImprimeTextoEm(Environment& environment, std::string_view texto, double x, double y,
                    bool negrito, double tamanho, std::string_view fonte, int margem) {
    Printer& printer = environment.printer;
    printer.FontName = fonte;
    printer.FontSize = tamanho;
    printer.FontBold = negrito;
    // The page printer holds positions in single precision.
    const float shift = margem == 0 ? halfCentimetre : 0.0F;
    printer.CurrentX = static_cast<float>(x) - shift;
    printer.CurrentY = static_cast<float>(y) - shift;
    if (const auto failure = printer.Print(texto)) {
        showFailure(environment, *failure);
    }
}

}  // namespace tarn
