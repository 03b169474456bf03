// A part of the program that lies in a file of its own: what the logon doesn't need yet, or what
// brings so many libraries that they cost less apart.
#pragma once

#include <filesystem>

namespace tarn {

// Where a part lies: beside the programs, in ../lib/tarnemissao/parts.
std::filesystem::path fileOfPart(const char* part);

class Part {
public:
    // Takes hold of the part's file: a part that is missing is told before any paper is due, and
    // a program installed over this one meanwhile doesn't give it parts of another release.
    // Raises std::runtime_error where there is none.
    explicit Part(const std::filesystem::path& file);
    ~Part();
    Part(const Part&) = delete;
    Part& operator=(const Part&) = delete;

    // The part's function of that name; the part is loaded for good when it is first asked for.
    // Raises std::runtime_error where there is none.
    void* function(const char* name) const;

private:
    int file_;
};

}  // namespace tarn
