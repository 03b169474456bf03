#include "runtime/mask.h"

#include <algorithm>
#include <optional>

#include "runtime/decimal.h"
#include "runtime/numbers.h"
#include "runtime/text.h"

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

// What of a rounded number gets written.
struct Written {
    int whole = 0;     // digits before the comma
    int points = 0;    // between them
    int decimals = 0;  // digits behind the comma
    bool minus = false;

    int length() const { return (minus ? 1 : 0) + whole + points + decimals + (decimals > 0); }
};

Written writtenOf(const Decimal& decimal, const NumberMask& mask) {
    Written written;
    written.minus = decimal.negative && decimal.count > 0;
    written.whole = std::max(decimal.point, mask.wholeDigits);
    written.points = mask.grouped && written.whole > 0 ? (written.whole - 1) / 3 : 0;
    if (mask.mostDecimals > 0) {
        written.decimals = std::max({decimal.count - decimal.point, mask.leastDecimals, 0});
    }
    return written;
}

void appendDecimal(std::string& out, Decimal decimal, const NumberMask& mask) {
    roundTo(decimal, mask.mostDecimals);
    if (decimal.count == 0) {
        decimal.point = 0;
    }
    const Written written = writtenOf(decimal, mask);
    const std::size_t start = out.size();
    out.resize(start + static_cast<std::size_t>(written.length()));
    char* to = out.data() + start;
    if (written.minus) {
        *to++ = '-';
    }
    for (int place = written.whole; place > 0; --place) {
        *to++ = digitAt(decimal, place);
        if (written.points > 0 && place > 1 && place % 3 == 1) {
            *to++ = '.';
        }
    }
    if (written.decimals > 0) {
        *to++ = ',';
    }
    for (int i = 0; i < written.decimals; ++i) {
        *to++ = digitAt(decimal, -i);
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
