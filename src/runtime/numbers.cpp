#include "runtime/numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "runtime/ascii.h"
#include "runtime/decimal.h"
#include "runtime/runtime_error.h"
#include "runtime/text.h"

namespace tarn {

namespace {

constexpr std::int64_t farExponent = std::int64_t{1} << 62U;  // no text is as long

bool isSign(char c) {
    return c == '-' || c == '+';
}

// The text without the characters that the point reading skips, as far as a number
// goes: [sign] digits [. digits] [e [sign] digits].
class PointText {
public:
    explicit PointText(std::string_view text) : rest_(text) {}

    std::string number() {
        takeSign();
        takeDigits();
        if (next() == '.') {
            take('.');
            takeDigits();
        }
        if (digits_ > 0) {
            takeExponent();
        }
        return digits_ > 0 ? number_ : std::string();
    }

private:
    char next() {
        while (!rest_.empty() &&
               (rest_.front() == ' ' || rest_.front() == '\t' || rest_.front() == '\n')) {
            rest_.remove_prefix(1);
        }
        return rest_.empty() ? '\0' : rest_.front();
    }

    void take(char c) {
        number_.push_back(c);
        rest_.remove_prefix(1);
    }

    void takeSign() {
        const char sign = next();
        if (sign == '-') {
            take('-');
        } else if (sign == '+') {
            rest_.remove_prefix(1);
        }
    }

    void takeDigits() {
        while (isDigit(next())) {
            take(next());
            ++digits_;
        }
    }

    // An exponent without digits is no part of the number.
    void takeExponent() {
        constexpr std::string_view letters = "eEdD";
        const char letter = next();
        if (letter == '\0' || letters.find(letter) == std::string_view::npos) {
            return;
        }
        const std::size_t mark = number_.size();
        take('e');
        if (isSign(next())) {
            take(next());
        }
        const int before = digits_;
        takeDigits();
        if (digits_ == before) {
            number_.resize(mark);
        }
    }

    std::string_view rest_;
    std::string number_;
    int digits_ = 0;
};

// What from_chars refuses for its size: beyond the largest double or below the least. Which of
// the two, the place of the first digit that counts and the exponent tell together.
double limitOf(std::string_view number) {
    const std::size_t mark = std::min(number.find('e'), number.size());
    const std::string_view digits = number.substr(0, mark);
    const std::size_t first = digits.find_first_of("123456789");
    if (first == std::string_view::npos) {
        return 0;
    }
    const std::size_t point = std::min(digits.find('.'), digits.size());
    std::string_view exponentText = number.substr(std::min(mark + 1, number.size()));
    exponentText.remove_prefix(exponentText.starts_with('+') ? 1 : 0);
    std::int64_t exponent = 0;
    const auto read =
        std::from_chars(exponentText.data(), exponentText.data() + exponentText.size(), exponent);
    if (read.ec == std::errc::result_out_of_range) {
        exponent = exponentText.starts_with('-') ? -farExponent : farExponent;
    }
    const auto place = static_cast<std::int64_t>(point) - static_cast<std::int64_t>(first);
    if (std::clamp(exponent, -farExponent, farExponent) + place < 0) {
        return 0;
    }
    const double largest = std::numeric_limits<double>::max();
    return number.starts_with('-') ? -largest : largest;
}

template <typename Integer>
Integer readInteger(std::string_view text) {
    const double value = std::nearbyint(readComma(text));
    if (value < std::numeric_limits<Integer>::min() ||
        value > std::numeric_limits<Integer>::max()) {
        throw RuntimeError(RuntimeErrorCode::Overflow, text);
    }
    return static_cast<Integer>(value);
}

}  // namespace

std::optional<double> parseComma(std::string_view text) {
    const std::optional<CommaText> scanned = scanComma(text);
    if (!scanned) {
        return std::nullopt;
    }
    const double value = valueOf(*scanned);
    return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

bool isNumeric(std::string_view text) {
    return parseComma(text).has_value();
}

double readComma(std::string_view text) {
    const std::optional<double> value = parseComma(text);
    if (!value) {
        throw RuntimeError(RuntimeErrorCode::TypeMismatch, "\"" + std::string(text) + "\"");
    }
    return *value;
}

double readPoint(std::string_view text) {
    const std::string number = PointText(text).number();
    double value = 0;
    const auto read = std::from_chars(number.data(), number.data() + number.size(), value);
    return read.ec == std::errc::result_out_of_range ? limitOf(number) : value;
}

std::string numberText(double value) {
    const Decimal decimal = decimalOf(value);
    if (decimal.count == 0) {
        return "0";
    }
    std::string out(decimal.negative ? "-" : "");
    const std::string_view digits(decimal.digits.data(), static_cast<std::size_t>(decimal.count));
    if (decimal.point <= 0) {
        out.append("0,").append(static_cast<std::size_t>(-decimal.point), '0').append(digits);
        return out;
    }
    const auto whole = static_cast<std::size_t>(decimal.point);
    if (whole >= digits.size()) {
        return out.append(digits).append(whole - digits.size(), '0');
    }
    return out.append(digits.substr(0, whole)).append(",").append(digits.substr(whole));
}

std::int16_t readInt16(std::string_view text) {
    return readInteger<std::int16_t>(text);
}

std::int32_t readInt32(std::string_view text) {
    return readInteger<std::int32_t>(text);
}

std::string pointToComma(std::string_view text) {
    std::string out(text);
    for (char& c : out) {
        c = c == '.' ? ',' : c;
    }
    return out;
}

}  // namespace tarn
