// One text on the page printer.
#pragma once

#include <string_view>

namespace tarn {

struct Environment;

// `x` and `y` are centimetres, `size` points. With `margin` 0 the text lands half
// a centimetre further left and up. A failure is shown to the user and the note
// goes on.
void ImprimeTextoEm(Environment& environment, std::string_view text, double x, double y, bool bold,
                    double size, std::string_view font, int margin);

}  // namespace tarn
