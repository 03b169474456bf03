// The item rows of a note document, for forms that print lines and for pages that
// are drawn.
#pragma once

#include <cstddef>

#include "notes/layout.h"

namespace tarn::notes {

struct Run;

// A count of lines that the form row tells; TipoIncompativel for what is no number.
int lineCount(Source source, Run& run);

// Quantity and line total of the item row in hand; with `sums` it is added to the
// note's quantities and weights.
void readNumbers(Quantity kind, bool sums, Run& run);

// The next position; Estouro past what the row counter holds.
std::size_t positionAfter(std::size_t position);

}  // namespace tarn::notes
