#include "slips/slip_number.h"

#include <array>
#include <cstddef>
#include <utility>

#include "runtime/mask.h"
#include "runtime/numbers.h"
#include "runtime/runtime_error.h"
#include "runtime/text.h"

namespace tarn {
namespace {

constexpr std::size_t modulo10Characters = 23;
constexpr std::array<int, 7> modulo11Weights{8, 7, 6, 5, 4, 3, 2};

int digitValue(char character) {
    if (character < '0' || character > '9') {
        throw RuntimeError(RuntimeErrorCode::TypeMismatch,
                           "número do boleto, agência ou conta da carteira");
    }
    return character - '0';
}

void requireSize(std::string_view text, std::size_t minimum, std::string_view detail) {
    if (lengthOf(text) < minimum) {
        throw RuntimeError(RuntimeErrorCode::InvalidArgument, detail);
    }
}

}  // namespace

int DigitoModulo10(std::string_view digits, std::string_view agency, std::string_view account) {
    std::string together(digits);
    together.append(agency).append(account);
    together = replaceAll(together, "-", "");
    requireSize(together, modulo10Characters,
                "número do boleto, agência e conta da carteira têm menos de 23 algarismos");
    int sum = 0;
    for (std::size_t i = 0; i < modulo10Characters; ++i) {
        const int product = digitValue(together[i]) * (i % 2 == 0 ? 1 : 2);
        sum += product / 10 + product % 10;
    }
    return (10 - sum % 10) % 10;
}

int DigitoModulo11(std::string_view digits) {
    requireSize(digits, modulo11Weights.size(), "número do boleto com menos de 7 algarismos");
    int sum = 0;
    for (std::size_t i = 0; i < modulo11Weights.size(); ++i) {
        sum += digitValue(digits[i]) * modulo11Weights[i];
    }
    const int rest = sum % 11;
    if (rest == 10) {
        return 1;
    }
    return rest <= 1 ? 0 : 11 - rest;
}

std::string thirteenDigits(double number) {
    return formatNumber(number, "0000000000000");
}

std::string sevenDigits(double number) {
    return formatNumber(number, "0000000");
}

RunningNumber::RunningNumber(const Portfolio& portfolio, std::string_view typed)
    : portfolio_(portfolio) {
    if (!isNumeric(typed)) {
        throw RuntimeError(RuntimeErrorCode::TypeMismatch, "número do próximo boleto");
    }
    const double number = readComma(typed);
    text_ = portfolio.isWallet57() ? numberText(number) : sevenDigits(number);
}

SlipNumber RunningNumber::slipNumber() const {
    if (portfolio_.isWallet57()) {
        std::string digits = thirteenDigits(readComma(text_));
        const int digit =
            DigitoModulo10(digits, portfolio_.CD_AGE_BAN_CNAB, portfolio_.NR_CCOR_CNAB);
        return {.digits = std::move(digits), .digit = digit, .NR_BOL_BANC = text_};
    }
    const int digit = DigitoModulo11(text_);
    return {.digits = text_, .digit = digit, .NR_BOL_BANC = text_ + std::to_string(digit)};
}

void RunningNumber::advance() {
    text_ = numberText(readComma(text_) + 1);
    if (portfolio_.isWallet57()) {
        return;
    }
    constexpr std::size_t figures = modulo11Weights.size();
    if (text_.size() > figures) {
        throw RuntimeError(RuntimeErrorCode::InvalidArgument,
                           "o número do próximo boleto tem mais de 7 algarismos");
    }
    text_.insert(0, figures - text_.size(), '0');
}

}  // namespace tarn
