#include "practice/data/tax_numbers.h"

namespace tarn::practice {
namespace {

// Modulo 11 with weights 2, 3, ... from the right, beginning again after
// `largestWeight`; remainders 0 and 1 give the digit 0.
char checkDigit(std::string_view digits, int largestWeight) {
    int sum = 0;
    int weight = 2;
    for (std::size_t i = digits.size(); i > 0; --i) {
        sum += (digits[i - 1] - '0') * weight;
        weight = weight == largestWeight ? 2 : weight + 1;
    }
    const int remainder = sum % 11;
    return static_cast<char>('0' + (remainder < 2 ? 0 : 11 - remainder));
}

std::string completed(std::string_view base, int largestWeight) {
    std::string number(base);
    number.push_back(checkDigit(number, largestWeight));
    number.push_back(checkDigit(number, largestWeight));
    return number;
}

}  // namespace

std::string companyTaxNumber(std::string_view twelveDigits) {
    return completed(twelveDigits, 9);
}

std::string personTaxNumber(std::string_view nineDigits) {
    return completed(nineDigits, 11);
}

}  // namespace tarn::practice
