// The number rules written a second time, over the C library, to be compared with the
// first. Slow and plain on purpose.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarn::fuzz {

std::optional<double> secondParseComma(std::string_view text);
double secondReadPoint(std::string_view text);
std::string secondFormatNumber(double value, std::string_view mask);

}  // namespace tarn::fuzz
