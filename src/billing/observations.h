// What the user must see of an order before going on.
#pragma once

#include <string>

#include "gateway/sessao.h"

namespace tarn {

class AlertDialog;
struct Environment;

// The observations of the order's sales, to be confirmed. `goesOn` comes back
// true when the action may go on.
void Seleciona_Obs_Vnd_X_Ord(Environment& environment, Sessao& session, AlertDialog& alert,
                             const std::string& order, bool& goesOn);

// The stock check: with something missing the order can't go on.
void Seleciona_Obs_Ord_X_Est(Environment& environment, Sessao& session, AlertDialog& alert,
                             const std::string& order, bool& goesOn);

}  // namespace tarn
