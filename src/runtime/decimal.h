// A number as its significant decimal digits: what masks and texts are made from.
#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace tarn {

inline constexpr int significantDigits = 15;

// The value 0.d1d2d3... times ten to the power of `point`. No leading zeros, so
// the number zero has no digits.
struct Decimal {
    bool negative = false;
    int point = 0;
    int count = 0;
    std::array<char, significantDigits> digits{};  // '0' to '9'
};

// The value to 15 significant digits. Raises Overflow for what is not finite.
Decimal decimalOf(double value);

// A text by the comma reading taken apart, nothing converted yet.
struct CommaText {
    bool negative = false;
    std::string_view whole;     // digits and grouping points
    std::string_view fraction;  // digits
};

std::optional<CommaText> scanComma(std::string_view text);

// The digits straight from the text; nothing when there are more than 15.
std::optional<Decimal> shortDecimal(const CommaText& text);

double valueOf(const CommaText& text);  // infinite when it is too large for a double

}  // namespace tarn
