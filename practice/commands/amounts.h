// Amounts as whole numbers: money in cents, quantities and weights in
// thousandths, rates in hundredths of a percent.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tarn::practice {

std::string moneyText(std::int64_t cents);           // "1234.50"
std::string quantityText(std::int64_t thousandths);  // "12.5", "12": no zeros behind

// value * numerator / denominator, rounded half away from zero.
std::int64_t scaled(std::int64_t value, std::int64_t numerator, std::int64_t denominator);

inline std::int64_t lineTotal(std::int64_t unitCents, std::int64_t quantityThousandths) {
    return scaled(unitCents, quantityThousandths, 1000);
}
inline std::int64_t percentOf(std::int64_t cents, std::int64_t rateHundredths) {
    return scaled(cents, rateHundredths, 10000);
}

// "1.234,5" in thousandths: points group, a comma parts up to three decimals.
// Negative and unreadable texts give nothing.
std::optional<std::int64_t> screenQuantity(std::string_view text);
// The same in cents; a third decimal that isn't 0 gives nothing.
std::optional<std::int64_t> screenMoney(std::string_view text);

}  // namespace tarn::practice
