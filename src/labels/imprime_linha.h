// One text of a label on the page printer.
#pragma once

#include <optional>
#include <string_view>

namespace tarn {
struct Environment;
struct PrinterFailure;
}  // namespace tarn

namespace tarn::labels {

// `x` and `y` are centimetres, `size` points. Unless `exactPosition` the text lands
// half a centimetre further left and up. A failure is shown to the user and printing
// goes on. `reserved` is not used.
void ImprimeLinha(Environment& environment, std::string_view text, double x, double y, bool bold,
                  double size, std::string_view font, bool reserved, bool exactPosition);

// The same as every label is written: Arial bold, off the exact position.
void write(Environment& environment, std::string_view text, double x, double y, double size);

// Centimetres, portrait.
void preparePage(Environment& environment);

// Shows why something couldn't be drawn or printed, if there is a reason.
void showFailure(Environment& environment, const std::optional<PrinterFailure>& failure);

}  // namespace tarn::labels
