// The form of company 2321 and the two forms of company 2421.
#include <gtest/gtest.h>

#include "notes/layouts/layouts.h"
#include "tests/notes/paper.h"

namespace tarn::test {
namespace {

const notes::Form& of2321() {
    return notes::imprimeNF_2321.formFor(1);
}

const notes::Form& of3621() {
    return notes::imprimeNF_2421.formFor(3621);
}

const notes::Form& ofOthers() {
    return notes::imprimeNF_2421.formFor(3622);
}

std::string labelled(const std::string& label, char letter) {
    return label + std::string(40, letter);
}

// The same on the three forms.
const std::string firstReferences =
    line({L(2, 15, "FAT: 004567"), T(17, ", "), L(19, 20, labelled("N/PED: ", 'x'))});
const std::string secondReferences =
    line({L(2, 20, labelled("S/PED: ", 'y')), T(22, ", "), L(24, 30, labelled("VEND: ", 'z'))});

TEST(ImprimeNF2321, EveryLine) {
    expectPaper(
        printed(of2321(), fullNote()), 51,
        {{1, " "},
         {3, line({T(89, "X")})},
         {7, line({L(2, 40, 'n'), L(48, 8, 'c')})},
         {10, line({L(2, 82, 'r'), L(92, 28, "12.345.678/0001-95"), L(122, 14, 'd')})},
         {12, line({L(2, 71, 'e'), L(73, 21, 'b'), L(104, 12, "01310-100"), L(118, 14, "")})},
         {14, line({L(2, 49, 'm'), L(61, 18, 'f'), L(82, 3, 'u'), L(90, 28, 'i'), L(124, 14, "")})},
         {16, line({L(4, 7, "DOC-1"), L(12, 10, "07/02/2009"), R(23, 15, "100,50"), L(44, 7, 'N'),
                    L(52, 10, 'V'), R(63, 15, "123456789012345,00"), L(84, 7, "DOC-3"),
                    L(92, 10, "07/04/2009"), R(103, 15, "1300,25")})},
         {17, "   "},
         {20, line({L(2, 69, 'D'), L(74, 3, "oSS"), L(81, 5, 'U'), R(89, 7, "10000000,000"),
                    R(99, 9, unitPrice), R(109, 17, lineTotal), L(128, 2, "18,00")})},
         {21, line({L(2, 69, "ARRUELA LISA"), L(74, 3, "120"), L(81, 5, "UN"), R(89, 7, "400,000"),
                    R(99, 9, "1234,50"), R(109, 17, "493.800,00"), L(128, 2, "7,")})},
         {22, " "},
         {26, " "},
         {29, line({R(2, 22, wide('1')), R(27, 20, wide('2')), R(52, 22, wide('3')),
                    R(79, 22, wide('4')), R(107, 24, wide('5'))})},
         {31, line({R(2, 22, "10,00"), R(27, 20, "5,50"), R(52, 22, "0,25"), R(79, 22, "80,04"),
                    R(107, 24, "1.696,54")})},
         {34, line({L(2, 59, 't'), L(75, 2, 'q'), L(82, 13, 'p'), L(99, 2, 'v'),
                    L(106, 27, " 2.345.678/0001-10")})},
         {36, line({L(2, 65, 'l'), L(75, 24, 'w'), L(100, 2, 's'), L(107, 27, 'k')})},
         {38, line({R(2, 17, "12,000"), L(25, 17, "VOLUME"), L(47, 15, ""), L(65, 21, ""),
                    R(90, 22, "123.456.789.012.345,000"), R(114, 18, "1.200,000")})},
         {41, firstReferences},
         {42, secondReferences},
         {43, line({T(2, ruler(1, 64))})},
         {44, line({T(2, ruler(65, 64))})},
         {45, line({T(2, ruler(128, 64))})},
         {46, line({T(2, ruler(192, 64))})}});
}

TEST(ImprimeNF2321, TheNumberStandsAmongTheReferencesOnly) {
    const std::vector<Job> jobs = print(of2321(), fullNote().xml());
    ASSERT_EQ(jobs.size(), 2U);
    EXPECT_EQ(jobs[0].writes, std::vector<std::string>{" \x0F\x1B\x1BG"});
    EXPECT_EQ(jobs[1].writes[0], " \r\n\r\n");
    const std::string stream = jobs[1].bytes();
    EXPECT_EQ(stream.find("004567"), stream.rfind("004567"));
    EXPECT_EQ(jobs[1].writes.back(), " " + ruler(192, 64) + "\r\n\r\n\r\n\r\n\r\n\r\n");
}

TEST(ImprimeNF2321, TheObservationHasItsLabel) {
    NoteText note = fullNote();
    for (Attributes& item : note.items) {
        item["DC_TXT_LEG_NF"] = "REDUZIDA";
    }
    note.head["DC_OBS"] = std::string(60, 'o');
    const std::vector<std::string> lines = linesOf(printed(of2321(), note));
    EXPECT_EQ(lines[42], " REDUZIDA OBS.: " + std::string(49, 'o'));
    EXPECT_EQ(lines[43], " " + std::string(11, 'o'));
    EXPECT_EQ(lines[44], " ");
    EXPECT_EQ(lines[45], " ");
}

TEST(ImprimeNF2421, EveryLineAtEstablishment3621) {
    expectPaper(
        printed(of3621(), fullNote()), 55,
        {{1, " "},
         {3, line({T(122, "004567")})},
         {4, line({T(87, "X")})},
         {10, line({L(2, 40, 'n'), L(45, 12, 'c')})},
         {13, line({L(2, 85, 'r'), L(91, 28, "12.345.678/0001-95"), L(125, 14, 'd')})},
         {14, line({L(2, 66, 'e'), L(71, 25, 'b'), L(104, 12, "01310-100"), L(120, 14, "")})},
         {16, line({L(2, 38, 'm'), L(54, 16, 'f'), L(78, 3, 'u'), L(96, 28, 'i'), L(130, 14, "")})},
         {18, line({T(60, "COND. PAGTO: "), L(73, 38, 'g')})},
         {21, line({L(2, 154, 'E')})},
         {25, line({L(6, 60, 'D'), L(76, 6, "oSSSSS"), L(84, 3, 'U'), R(88, 8, "10000000,000"),
                    R(97, 11, unitPrice), R(109, 18, lineTotal), L(129, 4, "18,00")})},
         {26, line({L(6, 60, "ARRUELA LISA"), L(76, 6, "120"), L(84, 3, "UN"), R(88, 8, "400,000"),
                    R(97, 11, "1234,50"), R(109, 18, "493.800,00"), L(129, 4, "7,00")})},
         {27, " "},
         {31, " "},
         {33, line({R(2, 18, wide('1')), R(23, 18, wide('2')), R(46, 24, wide('3')),
                    R(73, 24, wide('4')), R(100, 24, wide('5'))})},
         {36, line({R(2, 18, "10,00"), R(23, 18, "5,50"), R(46, 24, "0,25"), R(73, 24, "80,04"),
                    R(100, 24, "1.696,54")})},
         {40, line({L(2, 55, 't'), L(73, 2, 'q'), L(80, 14, 'p'), L(101, 2, 'v'),
                    L(110, 27, " 2.345.678/0001-10")})},
         {41, line({L(2, 55, 'l'), L(61, 35, 'w'), L(100, 4, 's'), L(109, 27, 'k')})},
         {43, line({R(2, 5, "12,000"), L(12, 20, "VOLUME"), L(35, 21, ""), L(59, 21, ""),
                    R(84, 20, "123.456.789.012.345,000"), R(107, 20, "1.200,000")})},
         {46, firstReferences},
         {47, secondReferences},
         {48, line({T(2, ruler(1, 90))})},
         {49, line({T(2, ruler(65, 90))})},
         {50, line({T(2, ruler(128, 90))})},
         {56, line({T(122, "004567")})}});
}

TEST(ImprimeNF2421, EveryLineAtAnyOtherEstablishment) {
    expectPaper(
        printed(ofOthers(), fullNote()), 59,
        {{1, " "},
         {3, line({T(142, "004567")})},
         {4, line({T(107, "X")})},
         {9, line({L(2, 46, 'n'), L(51, 12, 'c')})},
         {12, line({L(2, 100, 'r'), L(106, 28, "12.345.678/0001-95"), L(144, 14, 'd')})},
         {14, line({L(2, 74, 'e'), L(80, 33, 'b'), L(118, 12, "01310-100"), L(134, 14, "")})},
         {16,
          line({L(2, 48, 'm'), L(53, 34, 'f'), L(90, 3, 'u'), L(108, 28, 'i'), L(142, 14, "")})},
         {19, line({T(80, "COND. PAGTO: "), L(93, 38, 'g')})},
         {23, line({L(2, 154, 'E')})},
         {28, line({L(9, 48, 'D'), L(58, 10, 'C'), L(74, 6, "oSSSSS"), L(82, 3, 'U'),
                    R(86, 8, "10000000,000"), R(95, 16, unitPrice), R(118, 18, lineTotal),
                    L(141, 4, "18,00"), L(146, 4, "12,50"), R(151, 8, "77777777,25")})},
         {29, line({L(9, 48, "ARRUELA LISA"), L(58, 10, "8481"), L(74, 6, "120"), L(82, 3, "UN"),
                    R(86, 8, "400,000"), R(95, 16, "1234,50"), R(118, 18, "493.800,00"),
                    L(141, 4, "7,00"), L(146, 4, "5,00"), R(151, 8, "3,50")})},
         {30, " "},
         {34, " "},
         {35, line({R(2, 26, wide('1')), R(29, 28, wide('2')), R(60, 30, wide('3')),
                    R(93, 30, wide('4')), R(126, 30, wide('5'))})},
         {38, line({R(2, 26, "10,00"), R(29, 28, "5,50"), R(60, 30, "0,25"), R(93, 30, "80,04"),
                    R(126, 30, "1.696,54")})},
         {42, line({L(2, 70, 't'), L(88, 2, 'q'), L(96, 20, 'p'), L(120, 2, 'v'),
                    L(129, 27, " 2.345.678/0001-10")})},
         {44, line({L(2, 70, 'l'), L(76, 42, 'w'), L(120, 4, 's'), L(129, 27, 'k')})},
         {46, line({R(2, 10, "12,000"), L(15, 24, "VOLUME"), L(42, 30, ""), L(75, 28, ""),
                    R(106, 26, "123.456.789.012.345,000"), R(135, 26, "1.200,000")})},
         {49, firstReferences},
         {50, secondReferences},
         {51, line({T(2, ruler(1, 90))})},
         {52, line({T(2, ruler(65, 90))})},
         {53, line({T(2, ruler(128, 90))})},
         {59, line({T(142, "004567")})}});
}

TEST(ImprimeNF2421, TheEstablishmentChoosesTheForm) {
    EXPECT_EQ(print(of3621(), fullNote().xml())[0].bytes(), " \x0F\x1B\x1BG");
    for (const std::int32_t establishment : {0, 1, 3620, 3622, -3621}) {
        EXPECT_EQ(&notes::imprimeNF_2421.formFor(establishment), &ofOthers());
    }
    EXPECT_EQ(print(ofOthers(), fullNote().xml())[0].bytes(), " \x0F\x1B\x1BM");
}

TEST(ImprimeNF2421, TheJobOf3621EndsWithoutALineEnd) {
    EXPECT_EQ(print(of3621(), fullNote().xml())[1].writes.back(), line({T(122, "004567")}));
    EXPECT_EQ(print(ofOthers(), fullNote().xml())[1].writes.back(),
              line({T(142, "004567")}) + "\r\n");
}

TEST(ImprimeNF2421, TheLabelOfThePaymentConditionAlwaysPrints) {
    NoteText note = fullNote();
    note.head.erase("DC_CND_PAG");
    note.head["QTDE_PARC"] = "is not read";
    EXPECT_EQ(linesOf(printed(of3621(), note))[17], line({T(60, "COND. PAGTO: "), L(73, 38, "")}));
    EXPECT_EQ(linesOf(printed(ofOthers(), note))[18],
              line({T(80, "COND. PAGTO: "), L(93, 38, "")}));
}

TEST(ImprimeNF2421, TheLegalTextsPiecesOverlap) {
    NoteText note = fullNote();
    for (Attributes& item : note.items) {
        item["DC_TXT_LEG_NF"] = ruler(1, 130);
    }
    std::vector<std::string> lines = linesOf(printed(of3621(), note));
    EXPECT_EQ(lines[47], " " + ruler(1, 90));
    EXPECT_EQ(lines[48], " " + ruler(65, 66));
    EXPECT_EQ(lines[49], " " + ruler(128, 3));
    for (Attributes& item : note.items) {
        item["DC_TXT_LEG_NF"] = "";
    }
    note.head["DC_OBS"] = "FRAGIL";
    lines = linesOf(printed(of3621(), note));
    EXPECT_EQ(lines[47], "  OBS.: FRAGIL");
    EXPECT_EQ(lines[48], " ");
    EXPECT_EQ(lines[49], " ");
}

}  // namespace
}  // namespace tarn::test
