// A part of the program that lies in a file of its own: what the logon doesn't need yet, or what
// brings so many libraries that they cost less apart.
#pragma once

#include <filesystem>

namespace tarn {

// Where a part lies: beside the programs, in ../lib/tarnemissao.
std::filesystem::path fileOfPart(const char* part);

// The part's function of that name; the part is loaded for good when it is first asked for.
// Raises std::runtime_error where there is none.
void* functionOfPart(const char* part, const char* function);

}  // namespace tarn
