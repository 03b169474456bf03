// The files of the source tree that the checks of the house read.
#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarn::test {

// Paths below `root`, with "/", of all files in these of its folders; sorted.
std::vector<std::string> filesIn(const std::filesystem::path& root,
                                 std::span<const std::string_view> folders);

bool isCpp(std::string_view path);  // .h, .cpp, .h.in

}  // namespace tarn::test
