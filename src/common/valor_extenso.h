// An amount in words.
#pragma once

#include <string>
#include <string_view>

namespace tarn {

// Capitals, no accents: "UM MIL, DUZENTOS E TRINTA E QUATRO REAIS E CINQUENTA
// CENTAVOS". `singular` names the unit when the whole part is 1. 0 gives "".
std::string ValorExtenso(double value, std::string_view plural = "REAIS",
                         std::string_view singular = "REAL");

}  // namespace tarn
