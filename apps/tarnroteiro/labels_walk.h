// Labels: those that wait on the server, and those of a selection of customers.
#pragma once

#include "apps/tarnroteiro/walk.h"

namespace tarn {

// Begins and ends at the main window.
void escreveEtiquetas(Roteiro& roteiro);
// Of a desk opened with the bulk selection, which is there after the logon.
void escreveSelecaoEtiquetas(Roteiro& roteiro);

}  // namespace tarn
