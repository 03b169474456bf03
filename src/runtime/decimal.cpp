#include "runtime/decimal.h"

#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

#include "runtime/ascii.h"
#include "runtime/runtime_error.h"
#include "runtime/text.h"

namespace tarn {

namespace {

constexpr std::array<std::uint64_t, 20> powersOfTen = [] {
    std::array<std::uint64_t, 20> powers{};
    std::uint64_t power = 1;
    for (std::uint64_t& entry : powers) {
        entry = power;
        power *= 10;
    }
    return powers;
}();

void dropTrailingZeros(Decimal& decimal) {
    while (decimal.count > 0 &&
           decimal.digits[static_cast<std::size_t>(decimal.count - 1)] == '0') {
        --decimal.count;
    }
}

// Three groups of five, so that the divisions of one don't wait for another's.
void setDigits(Decimal& decimal, std::uint64_t fifteenDigits) {
    constexpr std::size_t groupDigits = 5;
    constexpr std::uint64_t groupSize = 100000;
    const std::uint64_t upperGroups = fifteenDigits / groupSize;
    const std::array<std::uint64_t, 3> groups = {upperGroups / groupSize, upperGroups % groupSize,
                                                 fifteenDigits % groupSize};
    for (std::size_t g = 0; g < groups.size(); ++g) {
        auto group = static_cast<std::uint32_t>(groups[g]);
        for (std::size_t i = groupDigits; i-- > 0;) {
            decimal.digits[g * groupDigits + i] = static_cast<char>('0' + group % 10);
            group /= 10;
        }
    }
    decimal.count = significantDigits;
    dropTrailingZeros(decimal);
}

#if defined(__SIZEOF_INT128__)
__extension__ typedef unsigned __int128 Wide;

// A double is mantissa * 2^-shift; times a power of ten that leaves 15 whole digits
// it is still exact in 128 bits, so that one shift rounds it (half to even).
// Holds for magnitudes from 1e-4 to below 1e15, which is all that gets printed.
std::uint64_t scaledDigits(double magnitude, std::uint64_t powerOfTen) {
    const auto bits = std::bit_cast<std::uint64_t>(magnitude);
    constexpr std::uint64_t hiddenBit = std::uint64_t{1} << 52U;
    const std::uint64_t mantissa = (bits & (hiddenBit - 1)) | hiddenBit;
    const auto shift = static_cast<unsigned>(1075 - static_cast<int>(bits >> 52U));
    const Wide product = static_cast<Wide>(mantissa) * powerOfTen;
    auto quotient = static_cast<std::uint64_t>(product >> shift);
    const Wide rest = product & ((static_cast<Wide>(1) << shift) - 1);
    const Wide half = static_cast<Wide>(1) << (shift - 1);
    if (rest > half || (rest == half && (quotient & 1U) != 0)) {
        ++quotient;
    }
    return quotient;
}

bool digitsByInteger(double magnitude, Decimal& decimal) {
    if (!(magnitude >= 1e-4 && magnitude < 1e15)) {
        return false;
    }
    int point = -3;
    for (double bound = 1e-3; point < 0 && magnitude >= bound; bound *= 10) {
        ++point;
    }
    while (point >= 0 && point < significantDigits &&
           magnitude >= static_cast<double>(powersOfTen[static_cast<std::size_t>(point)])) {
        ++point;
    }
    std::uint64_t digits =
        scaledDigits(magnitude, powersOfTen[static_cast<std::size_t>(significantDigits - point)]);
    if (digits >= powersOfTen[significantDigits]) {
        digits /= 10;
        ++point;
    }
    decimal.point = point;
    setDigits(decimal, digits);
    return true;
}
#else
bool digitsByInteger(double, Decimal&) {
    return false;
}
#endif

// Any magnitude: "d.dddddddddddddde+XX".
void digitsByText(double magnitude, Decimal& decimal) {
    std::array<char, 32> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), magnitude,
                                   std::chars_format::scientific, significantDigits - 1);
    decimal.digits[0] = text[0];
    for (std::size_t i = 1; i < significantDigits; ++i) {
        decimal.digits[i] = text[i + 1];
    }
    const char* exponentText = text.data() + significantDigits + 2;
    exponentText += *exponentText == '+' ? 1 : 0;
    int exponent = 0;
    std::from_chars(exponentText, end.ptr, exponent);
    decimal.point = exponent + 1;
    decimal.count = significantDigits;
    dropTrailingZeros(decimal);
}

}  // namespace

Decimal decimalOf(double value) {
    if (!std::isfinite(value)) {
        throw RuntimeError(RuntimeErrorCode::Overflow);
    }
    Decimal decimal;
    decimal.negative = std::signbit(value);
    const double magnitude = std::fabs(value);
    if (magnitude > 0 && !digitsByInteger(magnitude, decimal)) {
        digitsByText(magnitude, decimal);
    }
    return decimal;
}

std::optional<CommaText> scanComma(std::string_view text) {
    text = trimBlanks(text);
    CommaText result;
    if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
        result.negative = text.front() == '-';
        text.remove_prefix(1);
    }
    std::size_t wholeEnd = 0;
    while (wholeEnd < text.size() &&
           (isDigit(text[wholeEnd]) || (text[wholeEnd] == '.' && wholeEnd > 0))) {
        ++wholeEnd;
    }
    result.whole = text.substr(0, wholeEnd);
    if (wholeEnd < text.size()) {
        if (text[wholeEnd] != ',') {
            return std::nullopt;
        }
        result.fraction = text.substr(wholeEnd + 1);
    }
    for (const char c : result.fraction) {
        if (!isDigit(c)) {
            return std::nullopt;
        }
    }
    if (result.whole.empty() && result.fraction.empty()) {
        return std::nullopt;
    }
    return result;
}

std::optional<Decimal> shortDecimal(const CommaText& text) {
    Decimal decimal;
    decimal.negative = text.negative;
    for (const char c : text.whole) {
        if (c == '.' || (c == '0' && decimal.count == 0)) {
            continue;
        }
        if (decimal.count == significantDigits) {
            return std::nullopt;
        }
        decimal.digits[static_cast<std::size_t>(decimal.count++)] = c;
    }
    decimal.point = decimal.count;
    for (const char c : text.fraction) {
        if (c == '0' && decimal.count == 0) {
            --decimal.point;
            continue;
        }
        if (decimal.count == significantDigits) {
            return std::nullopt;
        }
        decimal.digits[static_cast<std::size_t>(decimal.count++)] = c;
    }
    dropTrailingZeros(decimal);
    return decimal;
}

double valueOf(const CommaText& text) {
    // A whole number of up to 15 digits over a power of ten up to 10^22 is one
    // correctly rounded division.
    constexpr std::size_t mostDigits = significantDigits;
    if (text.whole.size() + text.fraction.size() <= mostDigits) {
        std::uint64_t number = 0;
        for (const std::string_view part : {text.whole, text.fraction}) {
            for (const char c : part) {
                number = c == '.' ? number : number * 10 + static_cast<std::uint64_t>(c - '0');
            }
        }
        const double value =
            static_cast<double>(number) / static_cast<double>(powersOfTen[text.fraction.size()]);
        return text.negative && number != 0 ? -value : value;
    }
    std::string plain(text.negative ? "-" : "");
    plain += replaceAll(text.whole, ".", "");
    plain += text.whole.empty() ? "0." : ".";
    plain += text.fraction;
    double value = 0;
    const auto read = std::from_chars(plain.data(), plain.data() + plain.size(), value);
    if (read.ec == std::errc::result_out_of_range) {
        // Too many digits before the comma is too large, else it is too small.
        const bool large = plain.find_first_not_of("-0") < plain.find('.');
        value = large ? std::numeric_limits<double>::infinity() : 0.0;
        return text.negative && large ? -value : value;
    }
    return value;
}

}  // namespace tarn
