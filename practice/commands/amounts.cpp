#include "practice/commands/amounts.h"

namespace tarn::practice {
namespace {

constexpr std::int64_t largestWhole = 10'000'000'000'000;

}  // namespace

std::string moneyText(std::int64_t cents) {
    const std::int64_t positive = cents < 0 ? -cents : cents;
    std::string text = cents < 0 ? "-" : "";
    text += std::to_string(positive / 100) + '.';
    text += static_cast<char>('0' + positive / 10 % 10);
    text += static_cast<char>('0' + positive % 10);
    return text;
}

std::string quantityText(std::int64_t thousandths) {
    const std::int64_t positive = thousandths < 0 ? -thousandths : thousandths;
    std::string decimals = std::to_string(1000 + positive % 1000).substr(1);
    decimals.erase(decimals.find_last_not_of('0') + 1);
    std::string text = thousandths < 0 ? "-" : "";
    text += std::to_string(positive / 1000);
    return decimals.empty() ? text : text + '.' + decimals;
}

std::int64_t scaled(std::int64_t value, std::int64_t numerator, std::int64_t denominator) {
    const std::int64_t product = value * numerator;
    const std::int64_t half = product < 0 ? -denominator / 2 : denominator / 2;
    return (product + half) / denominator;
}

std::optional<std::int64_t> screenQuantity(std::string_view text) {
    std::int64_t whole = 0;
    std::int64_t decimals = 0;
    std::int64_t place = 1000;
    bool digits = false;
    bool afterComma = false;
    for (const char c : text) {
        if (c == ',' && !afterComma) {
            afterComma = true;
        } else if (c >= '0' && c <= '9') {
            digits = true;
            if (!afterComma) {
                whole = whole * 10 + (c - '0');
            } else if (place > 1) {
                place /= 10;
                decimals += (c - '0') * place;
            }
        } else if (c != '.' || afterComma || !digits) {
            return std::nullopt;
        }
        if (whole > largestWhole) {
            return std::nullopt;
        }
    }
    return digits ? std::optional(whole * 1000 + decimals) : std::nullopt;
}

std::optional<std::int64_t> screenMoney(std::string_view text) {
    const std::optional<std::int64_t> thousandths = screenQuantity(text);
    return thousandths && *thousandths % 10 == 0 ? std::optional(*thousandths / 10) : std::nullopt;
}

}  // namespace tarn::practice
