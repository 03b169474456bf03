#include "tests/fuzz/second_ways.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>

namespace tarn::fuzz {

namespace {

constexpr std::string_view figures = "0123456789";

bool isFigure(char c) {
    return figures.find(c) != std::string_view::npos;
}

std::string without(std::string text, std::string_view characters) {
    std::erase_if(text, [&](char c) { return characters.find(c) != std::string_view::npos; });
    return text;
}

std::size_t figuresFrom(const std::string& text, std::size_t start) {
    const std::size_t end = text.find_first_not_of(figures, start);
    return std::min(end, text.size()) - std::min(start, text.size());
}

// The value's digits before and behind the point, to 15 significant ones.
struct Digits {
    std::string whole;
    std::string fraction;
};

Digits digitsOf(double magnitude) {
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.14e", magnitude);
    const std::string scientific = text.data();
    const std::size_t mark = scientific.find('e');
    const std::string digits = without(scientific.substr(0, mark), ".");
    const int exponent = std::atoi(scientific.c_str() + mark + 1);
    constexpr std::size_t room = 340;  // more than any exponent
    std::string all(room, '0');
    all += digits + std::string(room, '0');
    const auto point = static_cast<std::size_t>(static_cast<int>(room) + exponent + 1);
    return {all.substr(0, point), all.substr(point)};
}

// One more in the last place.
void countUp(std::string& number) {
    for (auto digit = number.rbegin(); digit != number.rend(); ++digit) {
        if (*digit != '9') {
            ++*digit;
            return;
        }
        *digit = '0';
    }
    number.insert(0, "1");
}

std::string groupedByThree(const std::string& whole) {
    std::string out;
    for (std::size_t i = 0; i < whole.size(); ++i) {
        if (i > 0 && (whole.size() - i) % 3 == 0) {
            out += '.';
        }
        out += whole[i];
    }
    return out;
}

struct Shape {
    std::size_t whole = 0;
    std::size_t least = 0;
    std::size_t most = 0;
    bool grouped = false;
};

// A "#" to the left of all zeros asks for no digit.
Shape shapeOf(std::string_view mask) {
    const std::size_t point = std::min(mask.find('.'), mask.size());
    const std::string whole = without(std::string(mask.substr(0, point)), ",");
    std::string fraction = without(std::string(mask.substr(point)), ".,");
    std::erase_if(fraction, [](char c) { return c != '0' && c != '#'; });
    Shape shape;
    const std::size_t zero = whole.find('0');
    shape.whole = zero == std::string::npos ? 0 : whole.size() - zero;
    shape.most = fraction.size();
    shape.least = fraction.find_last_of('0') + 1;  // none: npos + 1 is 0
    shape.grouped = mask.find(',') != std::string_view::npos;
    return shape;
}

}  // namespace

std::optional<double> secondParseComma(std::string_view text) {
    std::string rest(text);
    while (rest.starts_with(' ')) {
        rest.erase(0, 1);
    }
    while (rest.ends_with(' ')) {
        rest.pop_back();
    }
    std::string number;
    if (rest.starts_with('-') || rest.starts_with('+')) {
        number = rest.substr(0, 1);
        rest.erase(0, 1);
    }
    const std::size_t comma = std::min(rest.find(','), rest.size());
    const std::string whole = without(rest.substr(0, comma), ".");
    const std::string fraction = rest.substr(std::min(comma + 1, rest.size()));
    const bool sound = !rest.starts_with('.') && whole.size() + fraction.size() > 0 &&
                       std::all_of(whole.begin(), whole.end(), isFigure) &&
                       std::all_of(fraction.begin(), fraction.end(), isFigure);
    if (!sound) {
        return std::nullopt;
    }
    number.append(whole.empty() ? "0" : whole).append(".").append(fraction);
    const double value = std::strtod(number.c_str(), nullptr);
    return std::isinf(value) ? std::nullopt : std::optional(value);
}

double secondReadPoint(std::string_view text) {
    const std::string rest = without(std::string(text.substr(0, text.find('\0'))), " \t\n");
    std::size_t end = rest.starts_with('-') || rest.starts_with('+') ? 1 : 0;
    const std::size_t whole = figuresFrom(rest, end);
    end += whole;
    std::size_t fraction = 0;
    if (end < rest.size() && rest[end] == '.') {
        fraction = figuresFrom(rest, end + 1);
        end += 1 + fraction;
    }
    if (whole + fraction == 0) {
        return 0;
    }
    std::string number = rest.substr(0, end);
    if (end < rest.size() && std::string_view("eEdD").find(rest[end]) != std::string_view::npos) {
        std::size_t exponent = end + 1;
        if (exponent < rest.size() && (rest[exponent] == '-' || rest[exponent] == '+')) {
            ++exponent;
        }
        const std::size_t count = figuresFrom(rest, exponent);
        if (count > 0) {
            number += "e" + rest.substr(end + 1, exponent + count - end - 1);
        }
    }
    const double value = std::strtod(number.c_str(), nullptr);
    const double largest = std::numeric_limits<double>::max();
    return std::isinf(value) ? std::copysign(largest, value) : value;
}

std::string secondFormatNumber(double value, std::string_view mask) {
    const Shape shape = shapeOf(mask);
    Digits digits = digitsOf(std::fabs(value));
    std::string number = digits.whole + digits.fraction.substr(0, shape.most);
    if (digits.fraction[shape.most] >= '5') {
        countUp(number);
    }
    const bool minus = value < 0 && number.find_first_not_of('0') != std::string::npos;
    std::string fraction = number.substr(number.size() - shape.most);
    std::string whole = number.substr(0, number.size() - shape.most);
    whole.erase(0, std::min(whole.find_first_not_of('0'), whole.size()));
    whole.insert(0, shape.whole > whole.size() ? shape.whole - whole.size() : 0, '0');
    while (fraction.size() > shape.least && fraction.ends_with('0')) {
        fraction.pop_back();
    }
    std::string out(minus ? "-" : "");
    out += shape.grouped ? groupedByThree(whole) : whole;
    return fraction.empty() ? out : out + "," + fraction;
}

}  // namespace tarn::fuzz
