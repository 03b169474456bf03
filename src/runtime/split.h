// A text taken apart at a separator.
#pragma once

#include <string_view>
#include <vector>

namespace tarn {

// The pieces between separators, empty ones too: always at least one. They live as
// long as the text.
std::vector<std::string_view> split(std::string_view text, char separator);

}  // namespace tarn
