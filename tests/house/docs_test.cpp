// The documents tell what is: every room, every library, and no page that isn't there.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <regex>

#include "tests/house/rooms.h"
#include "tests/house/source_tree.h"
#include "tests/support/files.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {

namespace fs = std::filesystem;

const fs::path treeRoot = TARN_SOURCE_DIR;

// Every first group of `pattern` in `text`.
Texts foundIn(const std::string& text, const std::regex& pattern) {
    Texts found;
    for (std::sregex_iterator at(text.begin(), text.end(), pattern), end; at != end; ++at) {
        found.push_back((*at)[1].str());
    }
    return found;
}

// Rooms of src by themselves; a folder of one is told with it.
Texts roomsOfSrc() {
    Complaints complaints;
    Texts names;
    for (const auto& [name, room] : readRooms(contentOf(treeRoot / "src/rooms.txt"), complaints)) {
        if (name.find('/') == std::string::npos) {
            names.push_back(name);
        }
    }
    EXPECT_EQ(complaints, Complaints{});
    return names;
}

TEST(Docs, EveryRoomStandsInTheTables) {
    const std::string architecture = contentOf(treeRoot / "docs/architecture.md");
    const std::string readme = contentOf(treeRoot / "README.md");
    const Texts rooms = roomsOfSrc();
    EXPECT_GT(rooms.size(), 15U);
    for (const std::string& room : rooms) {
        const std::regex row("\\n\\|[^|]*`" + room + "`[^|]*\\|");
        EXPECT_TRUE(std::regex_search(architecture, row)) << room;
        EXPECT_NE(readme.find("| `src/" + room + "` |"), std::string::npos) << room;
    }
}

TEST(Docs, EveryLibraryStandsInTheTable) {
    const std::string architecture = contentOf(treeRoot / "docs/architecture.md");
    const std::regex library("tarn_add_library\\((tarn_[a-z_]+)\\)");
    Texts libraries = foundIn(contentOf(treeRoot / "src/CMakeLists.txt"), library);
    EXPECT_GT(libraries.size(), 10U);
    libraries.emplace_back("tarn_practice");
    for (const std::string& name : libraries) {
        EXPECT_NE(architecture.find("| `" + name + "` |"), std::string::npos) << name;
    }
}

TEST(Docs, EveryLinkLeadsToAFile) {
    Texts pages{"README.md", "CONTRIBUTING.md", "CHANGELOG.md"};
    for (const std::string& file : filesIn(treeRoot, std::array<std::string_view, 1>{"docs"})) {
        if (file.ends_with(".md")) {
            pages.push_back(file);
        }
    }
    EXPECT_GT(pages.size(), 8U);
    const std::regex link("\\]\\(([^)#:]+)(#[^)]*)?\\)");
    Texts broken;
    for (const std::string& page : pages) {
        for (const std::string& target : foundIn(contentOf(treeRoot / page), link)) {
            if (!fs::exists(treeRoot / fs::path(page).parent_path() / target)) {
                broken.push_back(std::string(page).append(": ").append(target));
            }
        }
    }
    EXPECT_EQ(broken, Texts{});
}

}  // namespace
}  // namespace tarn::test
