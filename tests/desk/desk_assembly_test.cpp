#include "desk/desk_assembly.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "runtime/file_names.h"
#include "tests/support/own_directory.h"

namespace tarn::test {
namespace {

std::string obstacle(const std::string& virtualPrinter) {
    Options options;
    options.virtualPrinter = virtualPrinter;
    return printerObstacle(options, printersOf(options));
}

TEST(PrinterObstacle, AFolderThatCanBeWrittenIsNone) {
    const OwnDirectory folder(u8"José");
    EXPECT_EQ(obstacle(nameOf(folder.path()) + "/saida"), "");
    EXPECT_TRUE(std::filesystem::is_directory(folder.path() / "saida"));
}

TEST(PrinterObstacle, AFolderThatCantBeWrittenIsNamed) {
    const OwnDirectory folder;
    const std::string file = nameOf(folder.path() / "arquivo");
    std::ofstream(pathOf(file)) << "a";
    EXPECT_EQ(obstacle(file + "/saida"), "--impressora-virtual \"" + file +
                                             "/saida\": não é possível gravar nesta pasta. Confira "
                                             "o nome e a permissão.");
}

TEST(PrinterObstacle, AProgramBuiltWithoutASystemsPrinterNeedsAFolder) {
    const Printers none;
    EXPECT_NE(printerObstacle(Options(), none).find("--impressora-virtual PASTA"),
              std::string::npos);
}

}  // namespace
}  // namespace tarn::test
