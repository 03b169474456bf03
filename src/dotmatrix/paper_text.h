// The paper as plain text: a character of the grid for each printed column, whatever
// its pitch.
#pragma once

#include <string>

#include "dotmatrix/continuous_paper.h"

namespace tarn::dotmatrix {

// UTF-8. One line for each row of a form, closed by LF and without trailing blanks,
// up to the form's last printed row; a form feed (0C) between two forms. Where characters
// were printed over each other the last one shows, but an underscore or blank hides none.
std::string textOf(const ContinuousPaper& paper);

// The lines of one form, without the form feed.
void appendText(std::string& out, const FormPage& page);
// What is in one row, without blanks at its end; the cells are of that row.
void putInto(std::u16string& row, const Cell& cell);

}  // namespace tarn::dotmatrix
