#include "tests/house/source_tree.h"

#include <algorithm>

namespace tarn::test {

namespace fs = std::filesystem;

std::vector<std::string> filesIn(const fs::path& root, std::span<const std::string_view> folders) {
    std::vector<std::string> files;
    for (const std::string_view folder : folders) {
        for (const auto& entry : fs::recursive_directory_iterator(root / folder)) {
            if (entry.is_regular_file()) {
                files.push_back(entry.path().lexically_relative(root).generic_string());
            }
        }
    }
    std::ranges::sort(files);
    return files;
}

bool isCpp(std::string_view path) {
    return path.ends_with(".h") || path.ends_with(".cpp") || path.ends_with(".h.in");
}

}  // namespace tarn::test
