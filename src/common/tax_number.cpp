#include "common/tax_number.h"

#include "runtime/mask.h"
#include "runtime/text.h"

namespace tarn {
namespace {

constexpr std::size_t cpfDigits = 11;
constexpr std::size_t cnpjDigits = 14;

}  // namespace

bool isNaturalPerson(std::string_view pesJur) {
    return pesJur == "0";
}

std::string cpfCnpj(bool naturalPerson, std::string_view number) {
    const std::size_t digits = naturalPerson ? cpfDigits : cnpjDigits;
    const std::string withZeros = std::string(digits, '0').append(number);
    return fillMask(rightOf(withZeros, digits),
                    naturalPerson ? "@@@.@@@.@@@-@@" : "@@.@@@.@@@/@@@@-@@");
}

}  // namespace tarn
