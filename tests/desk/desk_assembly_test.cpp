#include "desk/desk_assembly.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace tarn::test {
namespace {

std::string obstacle(const std::string& virtualPrinter) {
    Options options;
    options.virtualPrinter = virtualPrinter;
    return printerObstacle(options, printersOf(options));
}

TEST(PrinterObstacle, AFolderThatCanBeWrittenIsNone) {
    std::string folder = (std::filesystem::temp_directory_path() / "tarn-desk-XXXXXX").string();
    ASSERT_NE(mkdtemp(folder.data()), nullptr);
    EXPECT_EQ(obstacle(folder + "/saida"), "");
    std::filesystem::remove_all(folder);
}

TEST(PrinterObstacle, AFolderThatCantBeWrittenIsNamed) {
    EXPECT_EQ(
        obstacle("/dev/null/saida"),
        "--impressora-virtual \"/dev/null/saida\": não é possível gravar nesta pasta. Confira "
        "o nome e a permissão.");
}

TEST(PrinterObstacle, AProgramBuiltWithoutASystemsPrinterNeedsAFolder) {
    const Printers none;
    EXPECT_NE(printerObstacle(Options(), none).find("--impressora-virtual PASTA"),
              std::string::npos);
}

}  // namespace
}  // namespace tarn::test
