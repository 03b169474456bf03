// Every source is compiled by somebody: a file that no build description names goes unnoticed,
// and a test in it passes for ever.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <map>

#include "tests/house/source_tree.h"
#include "tests/support/files.h"

namespace tarn::test {
namespace {

namespace fs = std::filesystem;

constexpr std::array<std::string_view, 4> compiledFolders{"src", "apps", "practice", "tests"};

bool isDescription(std::string_view file) {
    return file.ends_with("CMakeLists.txt") || file.ends_with(".cmake");
}

// Of each folder that has any, its descriptions.
using Descriptions = std::map<fs::path, std::string>;

// A description writes the part that differs from system to system as a condition.
fs::path asDescribed(const std::string& file) {
    std::string name = file;
    for (const std::string_view system : {"windows.cpp", "posix.cpp"}) {
        if (name.ends_with(system)) {
            name.erase(name.size() - system.size());
        }
    }
    return name;
}

bool isOfAName(char character) {
    return std::isalnum(static_cast<unsigned char>(character)) != 0 ||
           std::string_view("_-./").find(character) != std::string_view::npos;
}

// Whether `path` stands there by itself, not as the end of a longer one.
bool names(const std::string& description, const std::string& path) {
    for (std::size_t at = description.find(path); at != std::string::npos;
         at = description.find(path, at + 1)) {
        if (at == 0 || !isOfAName(description[at - 1])) {
            return true;
        }
    }
    return false;
}

// By the description of its own folder or of one above, as its path from there; by any other
// as its path from the root.
bool isNamed(const std::string& file, const Descriptions& descriptions) {
    const fs::path source = asDescribed(file);
    const std::string fromRoot = "${PROJECT_SOURCE_DIR}/" + source.generic_string();
    return std::ranges::any_of(descriptions, [&](const auto& description) {
        const auto& [folder, text] = description;
        const std::string path = source.lexically_relative(folder).generic_string();
        return names(text, fromRoot) || (!path.starts_with("..") && names(text, path));
    });
}

std::vector<std::string> unnamed(const std::vector<std::string>& files,
                                 const Descriptions& descriptions) {
    std::vector<std::string> found;
    std::ranges::copy_if(files, std::back_inserter(found), [&](const std::string& file) {
        return file.ends_with(".cpp") && !isNamed(file, descriptions);
    });
    return found;
}

TEST(Sources, OneThatNoDescriptionNamesIsFound) {
    const Descriptions descriptions{
        {"src", "target_sources(x room/a.cpp c_$<IF:1,windows,posix>.cpp)"},
        {"src/other", "target_sources(y own_b.cpp ${PROJECT_SOURCE_DIR}/src/room/d.cpp)"}};
    EXPECT_EQ(unnamed({"src/room/a.cpp", "src/room/d.cpp", "src/other/a.cpp", "src/other/b.cpp",
                       "src/other/own_b.cpp", "src/b.h", "src/c_posix.cpp"},
                      descriptions),
              (std::vector<std::string>{"src/other/a.cpp", "src/other/b.cpp"}));
}

TEST(Sources, AllAreCompiled) {
    const fs::path root = TARN_SOURCE_DIR;
    const std::vector<std::string> files = filesIn(root, compiledFolders);
    Descriptions descriptions;
    for (const std::string& file : files) {
        if (isDescription(file)) {
            descriptions[fs::path(file).parent_path()] += contentOf(root / file);
        }
    }
    EXPECT_GT(files.size(), 500U);
    EXPECT_EQ(unnamed(files, descriptions), std::vector<std::string>());
}

}  // namespace
}  // namespace tarn::test
