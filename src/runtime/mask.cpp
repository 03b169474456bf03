#include "runtime/mask.h"

#include <algorithm>
#include <optional>

#include "runtime/decimal.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "runtime/utf8.h"

namespace tarn {

namespace {

// Cuts to `places` decimals, half away from zero.
void roundTo(Decimal& decimal, int places) {
    const int keep = decimal.point + places;
    if (keep >= decimal.count) {
        return;
    }
    if (keep < 0) {
        decimal.count = 0;
        return;
    }
    const bool up = decimal.digits[static_cast<std::size_t>(keep)] >= '5';
    int last = keep;
    while (last > 0 && decimal.digits[static_cast<std::size_t>(last - 1)] == (up ? '9' : '0')) {
        --last;
    }
    decimal.count = last;
    if (up && last > 0) {
        ++decimal.digits[static_cast<std::size_t>(last - 1)];
    } else if (up) {
        decimal.digits[0] = '1';
        decimal.count = 1;
        ++decimal.point;
    }
}

// The digit `place` places before the comma; 0 is the first one behind it.
char digitAt(const Decimal& decimal, int place) {
    const int index = decimal.point - place;
    const bool held = index >= 0 && index < decimal.count;
    return held ? decimal.digits[static_cast<std::size_t>(index)] : '0';
}

void appendDecimal(std::string& out, Decimal decimal, const NumberMask& mask) {
    roundTo(decimal, mask.mostDecimals);
    if (decimal.count == 0) {
        decimal.point = 0;
    } else if (decimal.negative) {
        out.push_back('-');
    }
    for (int place = std::max(decimal.point, mask.wholeDigits); place > 0; --place) {
        out.push_back(digitAt(decimal, place));
        if (mask.grouped && place > 1 && place % 3 == 1) {
            out.push_back('.');
        }
    }
    const int decimals = std::max(decimal.count - decimal.point, mask.leastDecimals);
    if (mask.mostDecimals == 0 || decimals <= 0) {
        return;
    }
    out.push_back(',');
    for (int i = 0; i < decimals; ++i) {
        out.push_back(digitAt(decimal, -i));
    }
}

std::size_t placeholdersOf(std::string_view mask) {
    return static_cast<std::size_t>(std::count(mask.begin(), mask.end(), '@'));
}

}  // namespace

std::string formatNumber(double value, const NumberMask& mask) {
    std::string out;
    appendNumber(out, value, mask);
    return out;
}

void appendNumber(std::string& out, double value, const NumberMask& mask) {
    appendDecimal(out, decimalOf(value), mask);
}

std::string formatText(std::string_view text, const NumberMask& mask) {
    std::string out;
    return appendText(out, text, mask) ? out : std::string(text);
}

bool appendText(std::string& out, std::string_view text, const NumberMask& mask) {
    const std::optional<CommaText> scanned = scanComma(text);
    if (!scanned) {
        return false;
    }
    if (const std::optional<Decimal> decimal = shortDecimal(*scanned)) {
        appendDecimal(out, *decimal, mask);
        return true;
    }
    const std::optional<double> value = parseComma(text);
    if (value) {
        appendNumber(out, *value, mask);
    }
    return value.has_value();
}

std::string fillMask(std::string_view text, std::string_view mask) {
    const std::size_t places = placeholdersOf(mask);
    const std::size_t length = lengthOf(text);
    std::size_t blanks = places > length ? places - length : 0;
    const std::string_view inFront = leftOf(text, length > places ? length - places : 0);
    std::string out(inFront);
    std::size_t position = inFront.size();
    for (const char c : mask) {
        if (c != '@') {
            out.push_back(c);
        } else if (blanks > 0) {
            out.push_back(' ');
            --blanks;
        } else {
            const std::size_t bytes = utf8At(text, position).bytes;
            out.append(text, position, bytes);
            position += bytes;
        }
    }
    return out;
}

}  // namespace tarn
