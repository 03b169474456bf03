#include "platform/directory/picture_folder.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace tarn::test {
namespace {

std::string folder(const std::map<std::string, std::string>& variables,
                   const std::set<std::string>& folders = {}) {
    return pictureFolderBy(
        [&](const char* name) {
            const auto found = variables.find(name);
            return found == variables.end() ? std::string() : found->second;
        },
        [&](const std::string& path) { return folders.contains(path); });
}

const std::string machines = "/usr/share/tarnemissao/figuras";

TEST(PictureFolder, IsTheUsersOwn) {
    EXPECT_EQ(folder({{"HOME", "/casa"}}), "/casa/.local/share/tarnemissao/figuras");
    EXPECT_EQ(folder({{"HOME", "/casa"}, {"XDG_DATA_HOME", "/dados"}}),
              "/dados/tarnemissao/figuras");
    EXPECT_EQ(folder({{"HOME", "/casa"}, {"XDG_DATA_HOME", "dados"}}),
              "/casa/.local/share/tarnemissao/figuras");
}

TEST(PictureFolder, IsTheMachinesWhereTheUserHasNone) {
    EXPECT_EQ(folder({{"XDG_DATA_HOME", "/dados"}}, {machines}), machines);
    EXPECT_EQ(folder({{"XDG_DATA_HOME", "/dados"}}, {machines, "/dados/tarnemissao/figuras"}),
              "/dados/tarnemissao/figuras");
}

}  // namespace
}  // namespace tarn::test
