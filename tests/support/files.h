// Files as tests read them.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace tarn::test {

// All of its bytes; none of a file that isn't there.
inline std::string contentOf(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

}  // namespace tarn::test
