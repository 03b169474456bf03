// What jobs tell that their documents cut before they printed, as findings on the paper.
#pragma once

#include <vector>

#include "printer/paper/paper_check.h"

namespace tarn::dotmatrix {

// Of the jobs that begin on this form, in their order; `jobs` are those of its roll.
std::vector<PaperFault> cutsOn(const FormPage& page, const FormDesign& design,
                               const std::vector<RollJob>& jobs);

}  // namespace tarn::dotmatrix
