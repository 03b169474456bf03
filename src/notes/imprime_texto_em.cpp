#include "notes/imprime_texto_em.h"

#include "common/printer_failure.h"
#include "platform/environment.h"
#include "platform/printer.h"

namespace tarn {
namespace {

constexpr float halfCentimetre = 0.5F;

}  // namespace

void ImprimeTextoEm(Environment& environment, std::string_view text, double x, double y, bool bold,
                    double size, std::string_view font, int margin) {
    Printer& printer = environment.printer;
    printer.FontName = font;
    printer.FontSize = size;
    printer.FontBold = bold;
    // The page printer holds positions in single precision.
    const float shift = margin == 0 ? halfCentimetre : 0.0F;
    printer.CurrentX = static_cast<float>(x) - shift;
    printer.CurrentY = static_cast<float>(y) - shift;
    if (const auto failure = printer.Print(text)) {
        showFailure(environment, *failure);
    }
}

}  // namespace tarn
