// Texts on the page printer, and what the user reads when it fails. Places are
// centimetres, sizes points.
#pragma once

#include <optional>
#include <string_view>

#include "platform/printer.h"

namespace tarn {

struct Environment;

struct TextFont {
    std::string_view name = "Arial";
    double size = 0;
    bool bold = true;
};

enum class TextPlace { Exact, HalfCentimetreOff };  // left of and above the point

std::optional<PrinterFailure> drawText(Printer& printer, std::string_view text, double x, double y,
                                       const TextFont& font,
                                       TextPlace place = TextPlace::HalfCentimetreOff);

// Line ends of the box that tells a failure: character 13 alone (decision D28) but for
// what bills, receipts and labels show (decisions D97 and D111).
inline constexpr std::string_view noteLineEnd = "\r";
inline constexpr std::string_view documentLineEnd = "\r\n";

void showFailure(Environment& environment, const PrinterFailure& failure, std::string_view lineEnd);

// A text of a drawn note, half a centimetre off with `margin` 0. A failure is told and the
// note goes on.
void ImprimeTextoEm(Environment& environment, std::string_view text, double x, double y, bool bold,
                    double size, std::string_view font, int margin);

}  // namespace tarn
