// Names of files are UTF-8 texts in this program, whatever page the machine's own are in.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tarn {

std::filesystem::path pathOf(std::string_view name);
std::string nameOf(const std::filesystem::path& path);

}  // namespace tarn
