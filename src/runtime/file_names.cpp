#include "runtime/file_names.h"

namespace tarn {

std::filesystem::path pathOf(std::string_view name) {
    return {std::u8string(name.begin(), name.end())};
}

std::string nameOf(const std::filesystem::path& path) {
    const std::u8string name = path.u8string();
    return {name.begin(), name.end()};
}

}  // namespace tarn
