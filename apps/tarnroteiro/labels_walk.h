// Labels: those that wait on the server, and those of a selection of customers.
#pragma once

#include "apps/tarnroteiro/walk.h"

namespace tarn {

// Begins and ends at the main window.
void walkLabels(Walk& walk);
// Of a desk opened with the bulk selection, which is there after the logon.
void walkLabelSelection(Walk& walk);

}  // namespace tarn
