// Draws the operations of one document page by page.
#pragma once

#include <span>

#include "platform/printer.h"
#include "platform/progress.h"
#include "platform/qt/page_canvas.h"

class QPrinter;

namespace tarn {

// Coordinates are counted from the corner of what can be printed on. False when the canvas
// doesn't take the document. `progress` is called for each page that is done, but not of the
// end.
bool paintDocument(PageCanvas& canvas, std::span<const PrintOperation> document,
                   const Progress& progress);

// The same on a printer of the system, which must draw on whole sheets.
bool paintDocument(QPrinter& printer, std::span<const PrintOperation> document,
                   const Progress& progress);

}  // namespace tarn
