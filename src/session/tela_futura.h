// What a menu entry or a button says whose screen is not part of this version yet.
#pragma once

#include <string>

namespace tarn {

struct Environment;

void avisaTelaFutura(Environment& ambiente, const std::string& tela);

}  // namespace tarn
