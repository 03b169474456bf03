// The paper on a printer of the machine, or in its PDF.
#pragma once

#include <QString>
#include <optional>

#include "dotmatrix/paper_export.h"

class QPrinter;

namespace tarn::dotmatrix {

// Forms `first` to `last` (from 0) in their own size where the printer takes it, else
// made smaller to fit. Nothing when they are out, else what went wrong.
std::optional<QString> printPaper(QPrinter& printer, const PaperPages& paper, std::size_t first,
                                  std::size_t last, const PaintOptions& options,
                                  const WriteProgress& progress = {});

}  // namespace tarn::dotmatrix
