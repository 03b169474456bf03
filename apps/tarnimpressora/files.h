// Jobs read from files and the paper written to files, with what goes wrong on stderr.
#pragma once

#include <QString>
#include <cstddef>

#include "apps/tarnimpressora/options.h"
#include "dotmatrix/paper_painter.h"
#include "dotmatrix/paper_roll.h"

namespace tarn::printer {

void complain(const QString& text);

// False when a job can't be read; then nothing is printed.
bool printFiles(const Options& options, dotmatrix::PaperRoll& roll);
bool writeFiles(const Options& options, const dotmatrix::PaintOptions& looks,
                dotmatrix::PaperRoll& roll);
// The notices from number `from` on; returns how many there are.
std::size_t showNotices(const dotmatrix::NoticeLog& notices, std::size_t from);

}  // namespace tarn::printer
