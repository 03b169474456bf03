// The number that a slip bears: the running number of a run and its check digit.
#pragma once

#include <string>
#include <string_view>

#include "slips/portfolio.h"

namespace tarn {

// Check digits, 0 to 9. Both raise InvalidArgument for too few characters and
// TypeMismatch for one that is no digit.
// Of the 13 digits of wallet 57, joined with agency and account; "-" doesn't count, the
// first 23 characters do.
int DigitoModulo10(std::string_view digits, std::string_view agency, std::string_view account);
// Of the first seven digits.
int DigitoModulo11(std::string_view digits);

// A number as each layout has it: under its mask of thirteen or of seven zeros.
std::string thirteenDigits(double number);
std::string sevenDigits(double number);

struct SlipNumber {
    std::string digits;  // as printed
    int digit = 0;       // check digit
    std::string NR_BOL_BANC;
};

// The running number of one run. Wallet 57 counts with the number as typed; the others
// with a text of seven digits.
class RunningNumber {
public:
    // TypeMismatch when what was typed is no number.
    RunningNumber(const Portfolio& portfolio, std::string_view typed);

    SlipNumber slipNumber() const;
    // InvalidArgument when seven digits no longer hold it.
    void advance();

private:
    const Portfolio& portfolio_;
    std::string text_;
};

}  // namespace tarn
