// Every source is compiled by somebody: a file that no build description names goes unnoticed,
// and a test in it passes for ever.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "tests/house/source_tree.h"
#include "tests/support/files.h"

namespace tarn::test {
namespace {

namespace fs = std::filesystem;

constexpr std::array<std::string_view, 4> compiledFolders{"src", "apps", "practice", "tests"};

bool isDescription(std::string_view file) {
    return file.ends_with("CMakeLists.txt") || file.ends_with(".cmake");
}

// A description writes the part that differs from system to system as a condition.
std::string nameInDescriptions(const std::string& file) {
    std::string name = fs::path(file).filename().string();
    for (const std::string_view system : {"windows.cpp", "posix.cpp"}) {
        if (name.ends_with(system)) {
            name.erase(name.size() - system.size());
        }
    }
    return name;
}

std::vector<std::string> unnamed(const std::vector<std::string>& files,
                                 const std::string& descriptions) {
    std::vector<std::string> found;
    std::ranges::copy_if(files, std::back_inserter(found), [&](const std::string& file) {
        return file.ends_with(".cpp") &&
               descriptions.find(nameInDescriptions(file)) == std::string::npos;
    });
    return found;
}

TEST(Sources, OneThatNoDescriptionNamesIsFound) {
    EXPECT_EQ(unnamed({"src/a.cpp", "src/b.cpp", "src/b.h", "src/c_posix.cpp"},
                      "target_sources(x a.cpp c_$<IF:1,windows,posix>.cpp)"),
              std::vector<std::string>{"src/b.cpp"});
}

TEST(Sources, AllAreCompiled) {
    const fs::path root = TARN_SOURCE_DIR;
    const std::vector<std::string> files = filesIn(root, compiledFolders);
    std::string descriptions;
    for (const std::string& file : files) {
        descriptions += isDescription(file) ? contentOf(root / file) : "";
    }
    EXPECT_GT(files.size(), 500U);
    EXPECT_EQ(unnamed(files, descriptions), std::vector<std::string>());
}

}  // namespace
}  // namespace tarn::test
