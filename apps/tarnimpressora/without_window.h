// The program without a window: jobs in, files out.
#pragma once

#include "apps/tarnimpressora/options.h"
#include "dotmatrix/paper_painter.h"

namespace tarn::printer {

int runWithoutWindow(int argc, char** argv, const Options& options,
                     const dotmatrix::PaintOptions& looks);

}  // namespace tarn::printer
