// The program with its window.
#pragma once

#include "apps/tarnimpressora/options.h"
#include "dotmatrix/paper_painter.h"

namespace tarn::printer {

// False where no window can be shown.
bool hasDisplay();
int runWithWindow(int argc, char** argv, const Options& options,
                  const dotmatrix::PaintOptions& looks);

}  // namespace tarn::printer
