// The item rows of a note document, for forms that print lines and for pages that are
// drawn.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "notes/layout.h"
#include "notes/run.h"

namespace tarn::notes {

// A count of lines that the form row tells; TypeMismatch for what is no number.
int lineCount(Source source, Run& run);

// Quantity and line total of the item row in hand; with `sums` it is added to the
// note's quantities and weights.
void readNumbers(Quantity kind, bool sums, Run& run);

// The next position; Overflow past what the row counter holds.
std::size_t positionAfter(std::size_t position);

// Calls `visit` with the number of each item row, from 1, and its position. There is
// at least one.
template <class Visit>
void forEachItem(Run& run, const Visit& visit) {
    std::size_t position = firstItem;
    do {
        visit(static_cast<int>(position - firstItem) + 1, position);
        position = positionAfter(position);
    } while (run.document.isItem(position));
    run.watchItem(0);
}

// Code and description of the item row in hand, for telling it from others; empty where
// the row has neither in their own spelling.
std::string nameOfItem(NoteDocument& document);

// Lines that the form of this note has for items: as many as the note says, or has items
// where no blank lines follow them. Nothing where the note doesn't tell; raises nothing.
std::optional<int> itemLinesOf(const Form& form, const XmlDocument& document);

// Prints the item rows on a form of `mostItems` lines; returns how many lines they took.
int printItems(const Items& block, int mostItems, Run& run);

}  // namespace tarn::notes
