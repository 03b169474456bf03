// A text broken at blanks into lines of about a given width.
#pragma once

#include <string>
#include <string_view>

namespace tarn {

// Lines are joined by character 13. The blank between two words isn't counted, so a
// line may be `width` + 1 characters long; a longer word is alone on its line.
// Blanks ahead of the first word are lost, doubled ones inside a line stay.
std::string QuebraTexto(std::string_view text, std::size_t width);

}  // namespace tarn
