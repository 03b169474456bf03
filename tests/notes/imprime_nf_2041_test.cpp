// The form of company 2041.
#include <gtest/gtest.h>

#include "notes/layouts/layouts.h"
#include "tests/notes/paper.h"

namespace tarn::test {
namespace {

const notes::Form& form() {
    return notes::imprimeNF_2041.formFor(1);
}

const std::vector<Line> paper = {
    {1, " "},
    {4, line({T(162, "004567")})},
    {5, line({T(121, "X")})},
    {10, line({L(6, 50, 'n'), L(58, 8, 'c')})},
    {13, line({L(6, 115, 'r'), L(126, 28, "12.345.678/0001-95"), L(166, 14, 'd')})},
    {15, line({L(6, 90, 'e'), L(99, 35, 'b'), L(136, 12, "01310-100"), L(154, 14, "")})},
    {17, line({L(6, 77, 'm'), L(87, 22, 'f'), L(111, 3, 'u'), L(124, 28, 'i'), L(158, 14, "")})},
    {20, line({L(12, 10, "DOC-1"), R(24, 12, "100,50"), L(46, 10, "07/02/2009"), L(71, 10, 'N'),
               R(83, 12, "123456789012345,00"), L(105, 10, 'V'), L(130, 10, "DOC-3"),
               R(142, 12, "1300,25"), L(164, 10, "07/04/2009")})},
    {21, line({T(12, "")})},
    {25, line({L(6, 10, 'P'), L(19, 55, 'D'), L(82, 12, 'C'), L(94, 3, "oSS"), L(100, 2, 'U'),
               R(106, 10, "10000000,000"), R(118, 15, "123.456.789,00"), R(136, 18, lineTotal),
               R(158, 5, "18,00"), R(163, 5, "12,50"), L(172, 15, "77777777,25")})},
    {26,
     line({L(6, 10, "P-002"), L(19, 55, "ARRUELA LISA"), L(82, 12, "8481"), L(94, 3, "120"),
           L(100, 2, "UN"), R(106, 10, "400,000"), R(118, 15, "1.234,50"), R(136, 18, "493.800,00"),
           R(158, 5, "7,00"), R(163, 5, "5,00"), L(172, 15, "3,50")})},
    {27, " "},
    {30, " "},
    {31, line({R(7, 25, wide('1')), R(42, 23, wide('2')), R(75, 22, wide('3')),
               R(107, 22, wide('4')), R(141, 25, wide('5'))})},
    {33, line({R(7, 25, "10,00"), R(42, 23, "5,50"), R(75, 22, "0,25"), R(107, 22, "80,04"),
               R(141, 25, "1.696,54")})},
    {36, line({L(6, 76, 't'), L(92, 2, 'q'), L(105, 13, 'p'), L(133, 2, 'v'),
               L(145, 27, " 2.345.678/0001-10")})},
    {38, line({L(6, 65, 'l'), L(75, 57, 'w'), L(135, 2, 's'), L(147, 27, 'k')})},
    {40, line({R(6, 13, "12,000"), L(27, 17, "VOLUME"), L(49, 15, ""), L(69, 21, ""),
               R(110, 22, "123.456.789.012.345,000"), R(142, 20, "1.200,000")})},
    {43, line({L(6, 20, 'x'), L(28, 70, "COND.PAGTO: " + std::string(70, 'g'))})},
    {44, line({T(28, ruler(1, 85))})},
    {45, line({L(6, 20, 'y'), T(28, ruler(86, 85))})},
    {46, line({T(28, ruler(171, 85))})},
    {47, line({L(6, 20, 'z'), T(28, ruler(256, 85))})},
    {53, line({T(162, "004567")})},
};

TEST(ImprimeNF2041, EveryLine) {
    expectPaper(printed(form(), fullNote()), 56, paper);
}

TEST(ImprimeNF2041, TheJobBeginsWithItsBlankLines) {
    const std::vector<Job> jobs = print(form(), fullNote().xml());
    ASSERT_EQ(jobs.size(), 2U);
    EXPECT_EQ(jobs[0].writes, std::vector<std::string>{" \x0F"});
    EXPECT_EQ(jobs[1].writes[0], " \r\n\r\n\r\n");
    EXPECT_EQ(jobs[1].writes.back(), line({T(162, "004567")}) + "\r\n\r\n\r\n\r\n");
}

TEST(ImprimeNF2041, ShortTextsKeepTheColumnOfTheLegalText) {
    NoteText note = fullNote();
    for (Attributes& item : note.items) {
        item["DC_TXT_LEG_NF"] = "REDUZIDA";
    }
    note.head["DC_OBS"] = "FRÁGIL";
    note.head["ID_VND_DIR"] = "0";
    note.head.erase("NR_PED_CLI");
    note.head.erase("DC_CND_PAG");
    const std::vector<std::string> lines = linesOf(printed(form(), note));
    EXPECT_EQ(lines[42], line({L(6, 20, ""), L(28, 70, "COND.PAGTO: ")}));
    // The observation follows the legal text at once.
    EXPECT_EQ(lines[43], line({T(28, "REDUZIDAFR\xC1GIL")}));
    EXPECT_EQ(lines[44], std::string(27, ' '));
    EXPECT_EQ(lines[45], std::string(27, ' '));
    EXPECT_EQ(lines[46], line({L(6, 20, 'z'), T(28, "")}));
}

TEST(ImprimeNF2041, TheObservationRunsOnThroughThePieces) {
    NoteText note = fullNote();
    for (Attributes& item : note.items) {
        item["DC_TXT_LEG_NF"] = ruler(1, 80);
    }
    note.head["DC_OBS"] = ruler(81, 300);
    expectPaper(printed(form(), note), 56, paper);
}

TEST(ImprimeNF2041, EveryKindOfItemPrintsAndTheDiscountIsNotLookedAt) {
    NoteText note = fullNote();
    note.items[0]["IC_TP_CAD"] = "S";
    note.items[1].erase("IC_TP_CAD");
    note.items[0]["VL_DSC"] = "nada";
    expectPaper(printed(form(), note), 56, paper);
}

}  // namespace
}  // namespace tarn::test
