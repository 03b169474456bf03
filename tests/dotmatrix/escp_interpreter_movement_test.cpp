#include <gtest/gtest.h>

#include "tests/dotmatrix/printer_rig.h"

namespace tarn::test {

using namespace dotmatrix;
namespace {

struct SpacingCase {
    const char* name;
    std::string bytes;
    Needles needles;
    PaperUnits distance;  // 1/2160 inch
};

class Spacing : public testing::TestWithParam<SpacingCase> {};

TEST_P(Spacing, FeedsByIt) {
    Dialect panel;
    panel.needles = GetParam().needles;
    PrinterRig rig(panel);
    rig.job(GetParam().bytes + "a\r\nb");
    ASSERT_EQ(rig.paper.lines().size(), 2U);
    EXPECT_EQ(rig.paper.lines()[1].y - rig.paper.lines()[0].y, GetParam().distance);
}

INSTANTIATE_TEST_SUITE_P(All, Spacing,
                         testing::Values(SpacingCase{"Sixth", "", Needles::Nine, 360},
                                         SpacingCase{"Eighth",
                                                     "\x1B"
                                                     "0",
                                                     Needles::Nine, 270},
                                         SpacingCase{"Seven72nds",
                                                     "\x1B"
                                                     "1",
                                                     Needles::Nine, 210},
                                         SpacingCase{"BackToSixth",
                                                     "\x1B"
                                                     "0\x1B"
                                                     "2",
                                                     Needles::Nine, 360},
                                         SpacingCase{"Six72nds",
                                                     "\x1B"
                                                     "A\x06",
                                                     Needles::Nine, 180},
                                         SpacingCase{"Six60ths",
                                                     "\x1B"
                                                     "A\x06",
                                                     Needles::TwentyFour, 216},
                                         SpacingCase{"Thirty216ths",
                                                     "\x1B"
                                                     "3\x1E",
                                                     Needles::Nine, 300},
                                         SpacingCase{"Thirty180ths",
                                                     "\x1B"
                                                     "3\x1E",
                                                     Needles::TwentyFour, 360},
                                         SpacingCase{"TooLargeIsDropped",
                                                     "\x1B"
                                                     "A\x56",
                                                     Needles::Nine, 360},
                                         SpacingCase{"Reset",
                                                     "\x1B"
                                                     "0\x1B@",
                                                     Needles::Nine, 360}),
                         [](const testing::TestParamInfo<SpacingCase>& tested) {
                             return std::string(tested.param.name);
                         });

TEST(Movement, FineFeedMovesAtOnceAndCountsNoLine) {
    PrinterRig rig;
    rig.job(
        "a\x1BJ\x6C"
        "b");
    ASSERT_EQ(rig.paper.lines().size(), 2U);
    EXPECT_EQ(rig.paper.lines()[1].y, 1080);  // 108/216 inch
    EXPECT_EQ(rig.paper.lines()[1].jobLine, 1U);
    EXPECT_EQ(rig.text(), "ab\n");
}

TEST(Movement, TabsStandEveryEightColumns) {
    PrinterRig rig;
    rig.job(
        "\x0F"
        "a\tb\t\tc\r\n1234567\t9\r\n12345678\tx");
    EXPECT_EQ(rig.text(), "a       b               c\n1234567 9\n12345678        x\n");
    EXPECT_EQ(rig.cell(1).x, 8 * 126);
}

TEST(Movement, LastCharacterOverprintedShowsAndBothAreKept) {
    PrinterRig rig;
    rig.job("0\b/ AB\rX\r\nabc\r___");
    EXPECT_EQ(rig.text(), "X AB\nabc\n");
    EXPECT_EQ(rig.cell(0).character, u'0');
    EXPECT_EQ(rig.cell(1).character, u'/');
    EXPECT_EQ(rig.cell(1).x, rig.cell(0).x);
    EXPECT_EQ(rig.cell(4).character, u'X');
    EXPECT_EQ(rig.cell(4).x, 0);
}

TEST(Movement, BackspaceStopsAtTheMargin) {
    PrinterRig rig;
    rig.job("\b\bA");
    EXPECT_EQ(rig.cell(0).x, 0);
    EXPECT_EQ(rig.cell(0).column, 1);
}

TEST(Movement, BellAndZeroDoNothing) {
    PrinterRig rig;
    rig.job(bytesOf("A\a\0B"));
    EXPECT_EQ(rig.text(), "AB\n");
    EXPECT_EQ(rig.printer.notices().total(), 0U);
}

TEST(Movement, FullLineGoesOnInTheNextOne) {
    PrinterRig rig;
    rig.job(std::string(136, 'x') + "YZ\r\nnext");
    EXPECT_EQ(rig.text(), std::string(136, 'x') + "\nYZ\nnext\n");
    EXPECT_EQ(rig.count(NoticeKind::PastRightMargin), 1U);
}

TEST(Movement, CondensedEliteFills272ColumnsOfTheWideCarriage) {
    PrinterRig rig;
    rig.job("\x0F\x1BM" + std::string(272, 'x'));
    EXPECT_EQ(rig.text(), std::string(272, 'x') + "\n");
    EXPECT_EQ(rig.printer.notices().total(), 0U);
    EXPECT_EQ(rig.paper.contentWidth(), 272 * 108);
}

}  // namespace
}  // namespace tarn::test
