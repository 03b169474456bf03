// What a job does to the paper at most: set the printer up, or print.
#pragma once

#include <string_view>

namespace tarn::dotmatrix {

// Nothing of it is seen, and the paper stays where it is: it is there for the job behind it.
bool onlySetsUp(std::string_view job);

}  // namespace tarn::dotmatrix
