// The paper as files. Each routine returns no value when the file is there, and else the
// reason in the words of the operating system or of the picture library; a file that
// failed is not left behind half written.
#pragma once

#include <QSizeF>
#include <QString>
#include <functional>
#include <optional>

#include "dotmatrix/continuous_paper.h"
#include "dotmatrix/paper_painter.h"

namespace tarn::dotmatrix {

inline constexpr int pictureDotsPerInch = 120;

// Asked before each form of a long paper with its number from 0; false stops the writing,
// which then fails with the text "interrompido".
using WriteProgress = std::function<bool(std::size_t form)>;

// One page for each printed form, in the size of the form.
std::optional<QString> writePdf(const PaperPages& paper, const PaintOptions& options,
                                const QString& file, const WriteProgress& progress = {});

// The first form goes into `file`, the others beside it: note.png, note-002.png, ...
std::optional<QString> writePng(const PaperPages& paper, const PaintOptions& options,
                                const QString& file, const WriteProgress& progress = {});
QString pictureName(const QString& file, std::size_t form);  // `form` from 0

QSizeF pageSizeInPoints(const Sheet& sheet, const Form& form);

std::optional<QString> writeText(const PaperPages& paper, const QString& file);

}  // namespace tarn::dotmatrix
