// The paper as files. Each routine returns no value when the file is there, and else the
// reason in the words of the operating system or of the picture library; a file that
// failed is not left behind half written.
#pragma once

#include <QString>
#include <optional>

#include "dotmatrix/continuous_paper.h"
#include "dotmatrix/paper_painter.h"

namespace tarn::dotmatrix {

inline constexpr int kPictureDotsPerInch = 120;

// One page for each printed form, in the size of the form.
std::optional<QString> writePdf(const ContinuousPaper& paper, const PaintOptions& options,
                                const QString& file);

// The first form goes into `file`, the others beside it: note.png, note-002.png, ...
std::optional<QString> writePng(const ContinuousPaper& paper, const PaintOptions& options,
                                const QString& file);
QString pictureName(const QString& file, std::size_t form);  // `form` from 0

std::optional<QString> writeText(const ContinuousPaper& paper, const QString& file);

}  // namespace tarn::dotmatrix
