#include <gtest/gtest.h>

#include "tests/dotmatrix/printer_rig.h"

namespace tarn::test {

using namespace dotmatrix;
namespace {

struct PitchCase {
    const char* name;
    std::string bytes;  // sent ahead of "AB"
    int width;          // 1/2160 inch: 216 is 10 an inch, 180 12, 126 17.14, 108 20
};

class Pitch : public testing::TestWithParam<PitchCase> {};

TEST_P(Pitch, PlacesCharactersByCell) {
    PrinterRig rig;
    rig.job(GetParam().bytes + "AB");
    EXPECT_EQ(rig.cell(0).x, 0);
    EXPECT_EQ(rig.cell(0).width, GetParam().width);
    EXPECT_EQ(rig.cell(1).x, GetParam().width);
    EXPECT_EQ(rig.cell(1).character, u'B');
}

INSTANTIATE_TEST_SUITE_P(
    All, Pitch,
    testing::Values(PitchCase{"Pica", "", 216}, PitchCase{"Elite", "\x1BM", 180},
                    PitchCase{"EliteEnds", "\x1BM\x1BP", 216}, PitchCase{"Condensed", "\x0F", 126},
                    PitchCase{"CondensedEnds", "\x0F\x12", 216},
                    PitchCase{"CondensedByEscape", "\x1B\x0F", 126},
                    PitchCase{"CondensedElite", "\x0F\x1BM", 108},
                    PitchCase{"EliteCondensed", "\x1BM\x0F", 108},
                    PitchCase{"EliteStaysAfterCondensed", "\x0F\x1BM\x12", 180},
                    PitchCase{"Micron", "\x1Bg", 144}, PitchCase{"WideLine", "\x0E", 432},
                    PitchCase{"WideLineByEscape", "\x1B\x0E", 432},
                    PitchCase{"WideLineCancelled", "\x0E\x14", 216},
                    PitchCase{"WideLineEnds", "\x0E\n", 216}, PitchCase{"Wide", "\x1BW1\n", 432},
                    PitchCase{"WideEnds", "\x1BW1\x1BW0", 216},
                    PitchCase{"MasterSelectEliteCondensed", "\x1B!\x05", 108},
                    PitchCase{"Reset", "\x0F\x1BM\x1BW1\x1B@", 216}),
    [](const testing::TestParamInfo<PitchCase>& tested) { return std::string(tested.param.name); });

TEST(PrintModes, EliteOverridesCondensedOnTheOldestPrinters) {
    Dialect panel;
    panel.eliteOverridesCondensed = true;
    PrinterRig rig(panel);
    rig.job("\x0F\x1BMA");
    EXPECT_EQ(rig.cell(0).width, 180);
}

TEST(PrintModes, ResetGoesBackToThePanel) {
    Dialect panel;
    panel.condensed = true;
    PrinterRig rig(panel);
    rig.job(
        "A\x12"
        "B\x1B@"
        "C");
    EXPECT_EQ(rig.cell(0).width, 126);
    EXPECT_EQ(rig.cell(1).width, 216);
    EXPECT_EQ(rig.cell(2).width, 126);
}

TEST(PrintModes, StylesGoOnAndOff) {
    PrinterRig rig;
    rig.job(
        "a\x1BGb\x1B"
        "Ec\x1BHd\x1B"
        "Fe\x1B-1f\x1B-0g\x1B"
        "4h\x1B"
        "5i");
    const int expected[] = {plain,      doubleStrike, doubleStrike | emphasised,
                            emphasised, plain,        underlined,
                            plain,      italicShear,  plain};
    for (std::size_t i = 0; i < std::size(expected); ++i) {
        EXPECT_EQ(rig.cell(i).style, expected[i]) << i;
        EXPECT_EQ(rig.cell(i).character, static_cast<char16_t>(u'a' + i));
    }
}

TEST(PrintModes, UnderlinedBlanksArePrinted) {
    PrinterRig rig;
    rig.job("\x1B-\x01 \x1B-" + bytesOf("\x00") + " x");
    EXPECT_EQ(rig.cell(0).character, u' ');
    EXPECT_EQ(rig.cell(1).character, u'x');
    EXPECT_EQ(rig.cell(1).column, 3);
}

}  // namespace
}  // namespace tarn::test
