// The tax number of a person or a company, as it is shown.
#pragma once

#include <string>
#include <string_view>

namespace tarn {

// What the server's PES_JUR says: only the text "0" is a natural person (decision D13).
bool isNaturalPerson(std::string_view pesJur);

// Zeros in front, the last 11 (natural person) or 14 characters, whatever they are,
// under "@@@.@@@.@@@-@@" or "@@.@@@.@@@/@@@@-@@" (decision D14).
std::string cpfCnpj(bool naturalPerson, std::string_view number);

}  // namespace tarn
