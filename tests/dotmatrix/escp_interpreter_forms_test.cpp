#include <gtest/gtest.h>

#include "tests/dotmatrix/printer_rig.h"

namespace tarn::test {

using namespace dotmatrix;
namespace {

std::string lineEnds(int count) {
    std::string bytes;
    for (int i = 0; i < count; ++i) {
        bytes += "\r\n";
    }
    return bytes;
}

TEST(Forms, BreakAfter66Lines) {
    PrinterRig rig;
    rig.job(std::string("first") + lineEnds(65) + "last" + lineEnds(1) + "second form");
    ASSERT_EQ(rig.paper.lines().size(), 3U);
    EXPECT_EQ(rig.paper.lines()[1].form, 0U);
    EXPECT_EQ(rig.paper.lines()[1].row, 65U);
    EXPECT_EQ(rig.paper.lines()[2].form, 1U);
    EXPECT_EQ(rig.paper.lines()[2].row, 0U);
    EXPECT_EQ(rig.paper.lines()[2].y, 11 * unitsPerInch);
    EXPECT_EQ(rig.text(), std::string("first\n").append(64, '\n') + "last\n\fsecond form\n");
}

TEST(Forms, EightyLinesAreAllKept) {
    PrinterRig rig;
    std::string job;
    for (int i = 1; i <= 80; ++i) {
        job += "line ";
        job += std::to_string(i);
        job += "\r\n";
    }
    rig.job(job);
    EXPECT_EQ(rig.paper.lines().size(), 80U);
    EXPECT_EQ(rig.paper.printedForms(), 2U);
    EXPECT_NE(rig.text().find("line 66\n\fline 67\n"), std::string::npos);
}

TEST(Forms, NoBlankFormAfterTheLastLineEnd) {
    PrinterRig rig;
    rig.job(std::string("x") + lineEnds(66));
    EXPECT_EQ(rig.paper.printedForms(), 1U);
    EXPECT_EQ(rig.paper.forms().size(), 2U);
    EXPECT_EQ(rig.text(), "x\n");
}

TEST(Forms, FormFeedGoesToTheTopOfTheNextForm) {
    PrinterRig rig;
    rig.job("a\r\nb\f\fc");
    ASSERT_EQ(rig.paper.lines().size(), 3U);
    EXPECT_EQ(rig.paper.lines()[2].y, 22 * unitsPerInch);
    EXPECT_EQ(rig.text(), "a\nb\n\f\fc\n");
}

TEST(Forms, PanelLengthAndLengthInLines) {
    Dialect panel;
    panel.formHeight = 33 * unitsPerInch / 6;
    PrinterRig rig(panel);
    rig.job(std::string("a") + lineEnds(33) + "b");
    EXPECT_EQ(rig.paper.lines()[1].form, 1U);

    PrinterRig other;
    other.job(std::string("\x1B"
                          "C\x18"
                          "a") +
              lineEnds(24) + "b");
    EXPECT_EQ(other.paper.lines()[1].form, 1U);
    EXPECT_EQ(other.paper.forms()[0].height, 4 * unitsPerInch);
}

TEST(Forms, LengthInInches) {
    PrinterRig rig;
    rig.job(bytesOf("\x1B"
                    "C\0\x0C"
                    "a") +
            lineEnds(71) + "b" + lineEnds(1) + "c");
    EXPECT_EQ(rig.paper.lines()[1].form, 0U);
    EXPECT_EQ(rig.paper.lines()[2].form, 1U);
    EXPECT_EQ(rig.paper.lines()[2].y, 12 * unitsPerInch);
}

TEST(Forms, LengthSetInsideAFormBeginsItAtTheLine) {
    PrinterRig rig;
    rig.job(
        "a\r\nb\x1B"
        "C\x06"
        "c" +
        lineEnds(6) + "d");
    EXPECT_EQ(rig.paper.forms()[0].height, 360);
    EXPECT_EQ(rig.paper.forms()[1].top, 360);
    EXPECT_EQ(rig.text(), "a\n\fbc\n\fd\n");
}

TEST(Forms, SenselessLengthsAreDropped) {
    for (const std::string& bytes : {bytesOf("\x1B"
                                             "C\0\0"),
                                     bytesOf("\x1B"
                                             "C\0\x17"),
                                     bytesOf("\x1B"
                                             "C\x80"),
                                     bytesOf("\x1B"
                                             "C\x01"),
                                     bytesOf("\x1B"
                                             "A\0\x1B"
                                             "C\x42")}) {
        PrinterRig rig;
        rig.job(bytes);
        EXPECT_EQ(rig.count(NoticeKind::BadParameter), 1U);
        EXPECT_EQ(rig.paper.formHeight(), 11 * unitsPerInch);
    }
}

TEST(Jobs, GoOnWhereThePaperAndTheStateStand) {
    PrinterRig rig;
    rig.job(" \x0F").job(" a\r\nb\r\n").job("c");
    EXPECT_EQ(rig.cell(0).width, 126);
    EXPECT_EQ(rig.cell(0).x, 216 + 126);
    EXPECT_EQ(rig.text(), "  a\nb\nc\n");
    ASSERT_EQ(rig.paper.lines().size(), 3U);
    EXPECT_EQ(rig.paper.lines()[0].job, 2U);
    EXPECT_EQ(rig.paper.lines()[0].jobLine, 1U);
    EXPECT_EQ(rig.paper.lines()[2].job, 3U);
    EXPECT_EQ(rig.paper.lines()[2].jobLine, 1U);
}

TEST(Jobs, CharactersAreFoundByTheJobsOwnLineAndColumn) {
    PrinterRig rig;
    rig.job(" \x0F").job(" a\r\n\r\n  xyz").job("Q");
    EXPECT_EQ(rig.paper.characterAt(2, 1, 2), u'a');
    EXPECT_EQ(rig.paper.characterAt(2, 1, 3), u' ');
    EXPECT_EQ(rig.paper.characterAt(2, 3, 5), u'z');
    EXPECT_EQ(rig.paper.characterAt(3, 1, 1), u'Q');
    EXPECT_EQ(rig.paper.characterAt(9, 1, 1), u' ');
    EXPECT_EQ(rig.text(), "  a\n\n  xyzQ\n");
}

TEST(Jobs, PiecesOfAnySizeGiveTheSamePaper) {
    const std::string job = bytesOf(
        " \x0F\x1B\x1BG \x1B"
        "C\0\x0B"
        "texto\r\n\x1BK\x02\0\x0C\x0C"
        "fim");
    PrinterRig whole;
    whole.job(job);
    PrinterRig pieces;
    pieces.printer.startJob();
    for (const char c : job) {
        pieces.printer.feed({&c, 1});
    }
    EXPECT_EQ(pieces.text(), whole.text());
    EXPECT_EQ(pieces.printer.notices().kept(), whole.printer.notices().kept());
    EXPECT_EQ(whole.text(), "  texto\nfim\n");
}

}  // namespace
}  // namespace tarn::test
