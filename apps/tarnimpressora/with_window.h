// The program with its window.
#pragma once

#include "dotmatrix/paper_painter.h"
#include "options.h"

namespace tarn::impressora {

// False where no window can be shown.
bool hasDisplay();
int runWithWindow(int argc, char** argv, const Options& options,
                  const dotmatrix::PaintOptions& looks);

}  // namespace tarn::impressora
