#include "platform/directory/ops_printer.h"

#include <gtest/gtest.h>

#include <fstream>

#include "platform/directory/directory_spooler.h"
#include "tests/support/files.h"
#include "tests/support/own_directory.h"

namespace tarn::test {
namespace {

namespace fs = std::filesystem;

class OpsPrinterTest : public testing::Test {
protected:
    std::string job(const std::string& name) const { return contentOf(directory_ / name); }
    bool has(const std::string& name) const { return fs::exists(directory_ / name); }

    OwnDirectory own_;
    const fs::path& directory_ = own_.path();
    std::shared_ptr<JobFiles> files_ = std::make_shared<JobFiles>(directory_);
};

TEST_F(OpsPrinterTest, OneLineAnOperation) {
    OpsPrinter printer(files_);
    printer.setScaleMode(ScaleMode::Centimetres);
    printer.setOrientation(Orientation::Landscape);
    printer.setCopies(2);
    printer.CurrentX = 1.1;
    printer.CurrentY = -0.00001;
    printer.Print("SAÍDA  ");
    printer.FontName = "Courier New";
    printer.FontSize = 9.5;
    printer.FontBold = true;
    printer.CurrentX = -1.265;
    printer.CurrentY = 10.9F;
    printer.Print("");
    printer.DrawWidth = 15;
    printer.Line(1.1, 0.9, 20.3, 0.9);
    printer.PaintPicture({"pic\\Logo", "..."}, 1.6, 1.3);
    printer.NewPage();
    EXPECT_EQ(printer.EndDoc(), std::nullopt);
    EXPECT_EQ(job("job-001.ops"),
              "scale\t7\n"
              "orientation\t2\n"
              "text\t1.100\t0.000\tArial\t8\t0\tSAÍDA  \n"
              "text\t-1.265\t10.900\tCourier New\t9.5\t1\t\n"
              "line\t1.100\t0.900\t20.300\t0.900\t15\n"
              "picture\t1.600\t1.300\tpic\\\\Logo\n"
              "newpage\n"
              "enddoc\n");
}

TEST_F(OpsPrinterTest, ControlCharactersOfATextAreBlanksAndNamesAreEscaped) {
    OpsPrinter printer(files_);
    printer.FontName = "a\tb\r\nc";
    printer.Print("1\t2\r\n3\x7F\\");
    EXPECT_EQ(job("job-001.ops"), "text\t0.000\t0.000\ta\\tb\\r\\nc\t8\t0\t1 2  3 \\\\\n");
}

TEST_F(OpsPrinterTest, EachOperationIsThereAtOnceAndAnUnendedJobStaysSo) {
    OpsPrinter printer(files_);
    printer.setScaleMode(ScaleMode::Centimetres);
    EXPECT_EQ(job("job-001.ops"), "scale\t7\n");
    printer.Print("A");
    EXPECT_EQ(job("job-001.ops"), "scale\t7\ntext\t0.000\t0.000\tArial\t8\t0\tA\n");
}

TEST_F(OpsPrinterTest, WhatFollowsTheEndIsANewJobNumberedWithTheRawOnes) {
    OpsPrinter printer(files_);
    DirectorySpooler spooler(files_);
    printer.Print("A");
    printer.EndDoc();
    ASSERT_TRUE(spooler.openPrinter("x") && spooler.startDocument({}));
    printer.NewPage();
    printer.EndDoc();
    EXPECT_EQ(job("job-001.ops"), "text\t0.000\t0.000\tArial\t8\t0\tA\nenddoc\n");
    EXPECT_TRUE(has("job-002.prn"));
    EXPECT_EQ(job("job-003.ops"), "newpage\nenddoc\n");
}

TEST_F(OpsPrinterTest, AFailureHasANumberAndADescription) {
    std::ofstream(directory_ / "arquivo") << "x";
    OpsPrinter printer(std::make_shared<JobFiles>(directory_ / "arquivo"));
    const auto failure = printer.Print("A");
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number, 482);
    EXPECT_NE(failure->description.find("não foi possível gravar"), std::string::npos);
}

}  // namespace
}  // namespace tarn::test
