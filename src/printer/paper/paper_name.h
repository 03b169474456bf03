// What a file with the paper is called, from what is printed on it.
#pragma once

#include <QString>

#include "dotmatrix/form_design.h"
#include "dotmatrix/paper_roll.h"

namespace tarn::dotmatrix {

// "nota-008529" where the form under the paper has a box for the number, else the name of
// the job that begins or ends nearest above the end of this form, else "papel".
QString proposedName(PaperRoll& roll, std::size_t form, const FormDesign* design);

}  // namespace tarn::dotmatrix
