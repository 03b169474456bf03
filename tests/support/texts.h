// Lists of texts compared whole: queries, lines, entries of a list. A comparison of two
// vectors is compiled once for them all, which a matcher of each number of elements isn't.
#pragma once

#include <string>
#include <vector>

namespace tarn::test {

using Texts = std::vector<std::string>;

}  // namespace tarn::test
