// Room for the words of a drawn box, above the print.
#pragma once

#include <vector>

#include "dotmatrix/form_design.h"

namespace tarn::dotmatrix {

// The boxes of a line grow half a line upwards, for their words, where nothing is
// above any of them.
void giveHeadroom(std::vector<FormBox>& boxes);

}  // namespace tarn::dotmatrix
