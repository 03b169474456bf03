// One cheque, and its number typed once more.
#pragma once

#include "apps/tarnroteiro/walk.h"

namespace tarn {

// Begins and ends at the main window.
void walkCheque(Walk& walk);

}  // namespace tarn
