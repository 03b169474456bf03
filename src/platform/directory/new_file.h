// A file of bytes to be written, which is new.
#pragma once

#include <cstdio>
#include <filesystem>

namespace tarn {

// Of a file that is there already: its place is taken, or none is made and errno is EEXIST,
// so that nobody writes over what another program has just made.
enum class IfThere { Replace, Refuse };

// Null when it can't be made; to be closed by std::fclose.
std::FILE* newFile(const std::filesystem::path& path, IfThere ifThere);

}  // namespace tarn
