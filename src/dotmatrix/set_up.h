// What a job does to the paper at most: set the printer up, or print.
#pragma once

#include <cstddef>
#include <string_view>

namespace tarn::dotmatrix {

// The paper stays where it is, and there is hardly more of it than a note needs to set its
// printer up: it is there for the job behind it. (One note's set-up leaves a digit on the
// paper, so nothing can be told by what is seen.)
inline constexpr std::size_t longestSetUp = 16;  // bytes

bool onlySetsUp(std::string_view job);

}  // namespace tarn::dotmatrix
