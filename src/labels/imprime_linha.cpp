#include "labels/imprime_linha.h"

#include "platform/environment.h"
#include "platform/message_boxes.h"
#include "platform/printer.h"

namespace tarn::labels {
namespace {

constexpr double halfCentimetre = 0.5;

}  // namespace

// CR LF between the lines, where the other box has character 13 alone: decision D97.
void showFailure(Environment& environment, const std::optional<PrinterFailure>& failure) {
    if (failure) {
        environment.boxes.show({.text = "Descrição :" + failure->description +
                                        "\r\n   Numero :" + std::to_string(failure->number)});
    }
}

void ImprimeLinha(Environment& environment, std::string_view text, double x, double y, bool bold,
                  double size, std::string_view font, bool /*reserved*/, bool exactPosition) {
    Printer& printer = environment.printer;
    printer.FontName = font;
    printer.FontSize = size;
    printer.FontBold = bold;
    const double indent = exactPosition ? 0 : halfCentimetre;
    printer.CurrentY = y - indent;
    printer.CurrentX = x - indent;
    showFailure(environment, printer.Print(text));
}

void write(Environment& environment, std::string_view text, double x, double y, double size) {
    ImprimeLinha(environment, text, x, y, true, size, "Arial", false, false);
}

void preparePage(Environment& environment) {
    environment.printer.setScaleMode(ScaleMode::Centimetres);
    environment.printer.setOrientation(Orientation::Portrait);
}

}  // namespace tarn::labels
