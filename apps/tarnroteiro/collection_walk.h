// Bills, receipts and slips of the practice company's open documents.
#pragma once

#include "apps/tarnroteiro/walk.h"

namespace tarn {

// Each begins and ends at the main window.
void walkBills(Walk& walk);
void walkSlips(Walk& walk);

}  // namespace tarn
