// The item rows of a note document, for forms that print lines and for pages that
// are drawn.
#pragma once

#include <cstddef>
#include <string>

#include "notes/layout.h"

namespace tarn::notes {

class NoteDocument;
struct Run;

// A count of lines that the form row tells; TypeMismatch for what is no number.
int lineCount(Source source, Run& run);

// Quantity and line total of the item row in hand; with `sums` it is added to the
// note's quantities and weights.
void readNumbers(Quantity kind, bool sums, Run& run);

// The next position; Overflow past what the row counter holds.
std::size_t positionAfter(std::size_t position);

// Code and description of the item row in hand, for telling it from others; empty where
// the row has neither in their own spelling.
std::string nameOfItem(NoteDocument& document);

}  // namespace tarn::notes
