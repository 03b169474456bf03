// What the user must see of an order before going on.
#pragma once

#include <string>

#include "gateway/sessao.h"

namespace tarn {

class AlertDialog;
struct Environment;

// What becomes of the action that asked.
enum class Next { Stop, GoOn };

// The observations of the order's sales, to be confirmed.
Next Seleciona_Obs_Vnd_X_Ord(Environment& environment, Sessao& session, AlertDialog& alert,
                             const std::string& order);

// The stock check: with something missing the order can't go on.
Next Seleciona_Obs_Ord_X_Est(Environment& environment, Sessao& session, AlertDialog& alert,
                             const std::string& order);

}  // namespace tarn
