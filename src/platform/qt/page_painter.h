// Draws the operations of one document on a Qt printer, page by page.
#pragma once

#include <span>

#include "platform/printer.h"
#include "platform/progress.h"

class QPrinter;

namespace tarn {

// The printer draws on whole sheets; coordinates are counted from the corner of what it can
// print on. False when it doesn't take the document. `progress` is called for each page
// that is done, but not of the end.
bool paintDocument(QPrinter& printer, std::span<const PrintOperation> document,
                   const Progress& progress);

}  // namespace tarn
