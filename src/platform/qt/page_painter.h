// Draws the operations of one document on a Qt printer, page by page.
#pragma once

#include <span>

#include "platform/print_operation.h"

class QPrinter;

namespace tarn {

// False when the printer doesn't take the document.
bool paintDocument(QPrinter& printer, std::span<const PrintOperation> document);

}  // namespace tarn
