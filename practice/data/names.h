// Names and addresses drawn by seed, in capitals as the server keeps them.
#pragma once

#include <optional>
#include <string>

#include "practice/data/dice.h"

namespace tarn::practice {

struct DrawnAddress {
    std::string street;  // without its number
    std::string number;  // "0": none
    std::optional<std::string> complement;
    std::string district;
    std::string postalCode;
    int city = 0;  // place in the table of towns, from 1
};

std::string drawnPersonName(Dice& dice);
std::string drawnCompanyName(Dice& dice);
DrawnAddress drawnAddress(Dice& dice);

// "RUA X, 45"; the street alone where the number is "0".
std::string addressLine(const std::string& street, const std::string& number);

}  // namespace tarn::practice
