// From a field of the table to its characters on the line.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "notes/layout.h"

namespace tarn::notes {

struct Run;

// Appends the fields to `line`, which has reached `column`, with the blanks before
// them; returns the column that the form has behind the last one.
int appendFields(std::string& line, int column, std::span<const Field> fields, Run& run);

// The legal texts joined, with the observation where the form has them together.
const std::string& legalTextOf(Run& run);

// Everything is printed: what no piece of the long texts has shown is lost.
void closeTexts(Run& run);

}  // namespace tarn::notes
