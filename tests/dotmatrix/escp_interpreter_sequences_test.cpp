// The set-up sequences of the forms in use, and what a printer makes of bytes it
// doesn't know.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "tests/dotmatrix/printer_rig.h"

namespace tarn::test {

using namespace dotmatrix;
namespace {

struct SetUpCase {
    const char* name;
    std::string bytes;
    int width;
    int style;
    std::string printed;  // with "x" sent behind the bytes
    std::vector<NoticeKind> notices;
};

class SetUp : public testing::TestWithParam<SetUpCase> {};

TEST_P(SetUp, LeavesThePrinterInItsMode) {
    PrinterRig rig;
    rig.job(GetParam().bytes + "x");
    EXPECT_EQ(rig.text(), GetParam().printed + "\n");
    const Cell last = rig.paper.lines().back().cells.back();
    EXPECT_EQ(last.character, u'x');
    EXPECT_EQ(last.width, GetParam().width);
    EXPECT_EQ(last.style, GetParam().style);
    std::vector<NoticeKind> kinds;
    for (const Notice& notice : rig.printer.notices().kept()) {
        kinds.push_back(notice.kind);
    }
    EXPECT_EQ(kinds, GetParam().notices);
}

INSTANTIATE_TEST_SUITE_P(
    Forms, SetUp,
    testing::Values(
        SetUpCase{"Condensed", "\x0F", 126, plain, "x", {}},
        SetUpCase{"TwiceCondensedAndUnknown",
                  " \x1B\x0F\x0F \x1B\x17 ",
                  126,
                  plain,
                  "   x",
                  {NoticeKind::UnknownCommand}},
        SetUpCase{"DoubledEscapeStrike",
                  " \x0F\x1B\x1BG",
                  126,
                  doubleStrike,
                  " x",
                  {NoticeKind::RepeatedEscape}},
        SetUpCase{
            "DoubledEscapeElite", " \x0F\x1B\x1BM", 108, plain, " x", {NoticeKind::RepeatedEscape}},
        SetUpCase{"CondensedElite", " \x0F\x1BM", 108, plain, " x", {}},
        SetUpCase{"HashThree", " \x1B#3", 216, plain, " 3x", {NoticeKind::NotDrawn}},
        SetUpCase{"CondensedStrike", " \x0F\x1BG", 126, doubleStrike, " x", {}},
        SetUpCase{"CondensedOffInside", " \x0F\x1BM \x12", 180, plain, "  x", {}},
        SetUpCase{"Slips",
                  " \x0F\x1BM \x1B"
                  "2 \x0F\x1BG",
                  108,
                  doubleStrike,
                  "   x",
                  {}},
        SetUpCase{"Cheques",
                  " \x1B"
                  "A\x06 \x0F\x1B\x1BG",
                  126,
                  doubleStrike,
                  "  x",
                  {NoticeKind::RepeatedEscape}}),
    [](const testing::TestParamInfo<SetUpCase>& tested) { return std::string(tested.param.name); });

TEST(Notices, TellWhereAndWhich) {
    PrinterRig rig;
    rig.job("ab\r\n").job(
        "\r\n cd\x1B\x17"
        "e");
    ASSERT_EQ(rig.printer.notices().total(), 1U);
    const Notice expected{NoticeKind::UnknownCommand, 2, 2, 4, "\x1B\x17"};
    EXPECT_EQ(rig.printer.notices().kept()[0], expected);
    EXPECT_EQ(describe(expected),
              "trabalho 2, linha 2, coluna 4, bytes 1B 17: comando desconhecido, desprezado; o "
              "que vem depois dele é impresso");
}

TEST(Notices, AreCountedPastTheKeptOnes) {
    PrinterRig rig;
    rig.job(std::string(5000, '\x1C'));
    EXPECT_EQ(rig.printer.notices().total(), 5000U);
    EXPECT_EQ(rig.printer.notices().kept().size(), NoticeLog::mostKept);
}

TEST(KnownCommands, TakeTheirParametersWithoutPrintingThem) {
    PrinterRig rig;
    rig.job(
        bytesOf("a\x1Bx1\x1BlA\x1B$AB\x1B"
                "D\x08\x10\0"
                "b\x1BK\x03\0XYZ\x1B*\x21\x02\0ABCDEF"
                "c"));
    EXPECT_EQ(rig.text(), "abc\n");
    EXPECT_EQ(rig.count(NoticeKind::NotDrawn), 6U);
}

TEST(CodePages, AccentsOfWindows1252) {
    PrinterRig rig;
    rig.job("A\xC7\xC3O n\xBA \xE1\xE9\xED\xF3\xFA\xA0.");
    EXPECT_EQ(rig.text(), "AÇÃO nº áéíóú .\n");
}

TEST(CodePages, UpperBytesOf1252AreControls) {
    PrinterRig rig;
    // 8F is SI, 92 DC2, 9B ESC, 8B VT, 93 DC3.
    rig.job(
        "\x8F"
        "a\x92"
        "b\x9BGc\x8B"
        "d\x93"
        "e");
    EXPECT_EQ(rig.cell(0).width, 126);
    EXPECT_EQ(rig.cell(1).width, 216);
    EXPECT_EQ(rig.cell(2).style, doubleStrike);
    EXPECT_EQ(rig.text(), "abc\nde\n");
    EXPECT_EQ(rig.count(NoticeKind::UpperControl), 5U);
    EXPECT_EQ(rig.count(NoticeKind::UnknownControl), 1U);
}

TEST(CodePages, AccentsOf850And860) {
    Dialect panel;
    panel.codePage = CodePage::Page850;
    PrinterRig rig(panel);
    rig.job("A\x80\xC7O \xA0\x82\xA1\xA2\xA3 \xE4\xC6");  // 850
    EXPECT_EQ(rig.text(), "AÇÃO áéíóú õã\n");
    panel.codePage = CodePage::Page860;
    PrinterRig portuguese(panel);
    portuguese.job("A\x80\x8EO \xA0\x82\xA1\xA2\xA3 \x94\x84");
    EXPECT_EQ(portuguese.text(), "AÇÃO áéíóú õã\n");
    EXPECT_EQ(portuguese.printer.notices().total(), 0U);
}

std::string randomJob(std::mt19937& random) {
    // Half of the jobs are mostly commands, where the states are.
    static const std::string livelyJob = bytesOf(
        "\x1B\x1B\x1B\x0F\x12\x0E\x14\b\t\n\r\f\0\x01\xFF"
        "ACJ3MPG@!WKLD*(-x \x9B\x8C");
    const bool lively = random() % 2 == 0;
    std::string bytes(random() % 400, '\0');
    for (char& byte : bytes) {
        byte = lively && random() % 4 != 0 ? livelyJob[random() % livelyJob.size()]
                                           : static_cast<char>(random() % 256);
    }
    return bytes;
}

TEST(Robustness, AnyBytesGiveSoundPaper) {
    for (unsigned seed = 1; seed <= 6000; ++seed) {
        std::mt19937 random(seed);
        Dialect panel;
        panel.codePage = seed % 3 == 0 ? CodePage::Page850 : CodePage::Page1252;
        PrinterRig rig(panel);
        const std::string first = randomJob(random);
        rig.job(first).job(randomJob(random));
        PaperUnits y = 0;
        for (const PaperLine& line : rig.paper.lines()) {
            ASSERT_GE(line.y, y) << "seed " << seed;
            y = line.y;
            ASSERT_LT(line.form, rig.paper.forms().size()) << "seed " << seed;
            const Form& form = rig.paper.forms()[line.form];
            ASSERT_GE(line.y, form.top) << "seed " << seed;
            ASSERT_LT(line.y, form.top + form.height) << "seed " << seed;
            for (const Cell& cell : line.cells) {
                ASSERT_GE(cell.x, 0);
                ASSERT_LE(cell.x + cell.width, panel.carriageWidth);
                ASSERT_GE(cell.column, 1);
            }
        }
        const std::string text = rig.text();
        const auto feeds = std::count(text.begin(), text.end(), '\f');
        ASSERT_EQ(static_cast<std::size_t>(feeds) + 1, rig.paper.printedForms()) << "seed " << seed;
    }
}

TEST(Robustness, BackspacesOfAnotherPitchDontRunAway) {
    PrinterRig rig;
    std::string job;
    for (int i = 0; i < 30000; ++i) {
        job += "\x0F\t\x12\x0E\b\b\x14";
    }
    rig.job(job + "x");
    EXPECT_EQ(rig.paper.lines().size(), 1U);
    EXPECT_LE(rig.cell(0).column, 4096);
}

}  // namespace
}  // namespace tarn::test
