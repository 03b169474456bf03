#include "common/drawn_text.h"

#include <string>

#include "platform/environment.h"
#include "platform/message_boxes.h"

namespace tarn {
namespace {

constexpr double halfCentimetre = 0.5;

void tell(Environment& environment, const std::optional<PrinterFailure>& failure,
          std::string_view lineEnd) {
    if (failure) {
        showFailure(environment, *failure, lineEnd);
    }
}

}  // namespace

std::optional<PrinterFailure> drawText(Printer& printer, std::string_view text, double x, double y,
                                       const TextFont& font, TextPlace place) {
    const double shift = place == TextPlace::Exact ? 0 : halfCentimetre;
    printer.FontName = font.name;
    printer.FontSize = font.size;
    printer.FontBold = font.bold;
    printer.CurrentX = x - shift;
    printer.CurrentY = y - shift;
    return printer.Print(text);
}

void showFailure(Environment& environment, const PrinterFailure& failure,
                 std::string_view lineEnd) {
    std::string text = "Descrição :" + failure.description;
    text.append(lineEnd).append("   Numero :").append(std::to_string(failure.number));
    environment.boxes.show({.text = text});
}

// Positions of a note are single precision.
void ImprimeTextoEm(Environment& environment, std::string_view text, double x, double y, bool bold,
                    double size, std::string_view font, int margin) {
    tell(environment,
         drawText(environment.printer, text, static_cast<float>(x), static_cast<float>(y),
                  {.name = font, .size = size, .bold = bold},
                  margin == 0 ? TextPlace::HalfCentimetreOff : TextPlace::Exact),
         noteLineEnd);
}

}  // namespace tarn
