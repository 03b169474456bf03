// The program without a window: jobs in, files out.
#pragma once

#include "dotmatrix/paper_painter.h"
#include "options.h"

namespace tarn::impressora {

int runWithoutWindow(int argc, char** argv, const Options& options,
                     const dotmatrix::PaintOptions& looks);

}  // namespace tarn::impressora
