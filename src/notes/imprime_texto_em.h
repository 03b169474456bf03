// One text on the page printer.
#pragma once

#include <string_view>

namespace tarn {

struct Environment;

// `x` and `y` are centimetres, `tamanho` points. With `margem` 0 the text lands half
// a centimetre further left and up. A failure is shown to the user and the note
// goes on.
void ImprimeTextoEm(Environment& environment, std::string_view texto, double x, double y,
                    bool negrito, double tamanho, std::string_view fonte, int margem);

}  // namespace tarn
