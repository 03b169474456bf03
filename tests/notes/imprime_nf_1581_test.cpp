// The forms of companies 1581 and 2801, whose parcels stand above the legal text.
#include <gtest/gtest.h>

#include "notes/layouts/layouts.h"
#include "tests/notes/paper.h"

namespace tarn::test {
namespace {

const notes::Form& of1581() {
    return notes::imprimeNF_1581.formFor(1);
}

const notes::Form& of2801() {
    return notes::imprimeNF_2801.formFor(1);
}

std::string labelled(const std::string& label, char letter) {
    return label + std::string(70, letter);
}

// The same on both forms.
const std::string references =
    line({L(2, 20, labelled("N/PED: ", 'x')), T(22, ", "), L(24, 20, labelled("S/PED: ", 'y')),
          T(44, ", "), L(46, 30, labelled("VEND: ", 'z'))});
const std::string condition = line({L(2, 70, labelled("COND.PAGTO: ", 'g'))});
const std::string parcelsRow = line({T(3, "1)"), L(5, 10, "07/02/2009"), R(15, 9, "100,50"),
                                     T(25, "2)"), L(27, 10, 'V'), R(37, 9, "123456789012345,00"),
                                     T(47, "3)"), L(49, 10, "07/04/2009"), R(59, 9, "1300,25")});

TEST(ImprimeNF1581, EveryLine) {
    expectPaper(printed(of1581(), fullNote()), 55,
                {{1, line({T(122, "004567")})},
                 {3, line({T(96, "X")})},
                 {8, line({L(2, 38, 'n'), L(40, 8, 'c')})},
                 {11, line({L(2, 82, 'r'), L(89, 28, "12.345.678/0001-95"), L(122, 10, 'd')})},
                 {13, line({L(2, 70, 'e'), L(72, 21, 'b'), L(103, 12, "01310-100")})},
                 {15, line({L(2, 49, 'm'), L(55, 18, 'f'), L(78, 3, 'u'), L(86, 28, 'i')})},
                 {19, line({L(6, 7, 'P'), L(18, 66, 'D'), L(86, 3, "oSS"), L(92, 3, 'U'),
                            L(96, 7, "10000000,000"), R(103, 9, unitPrice), R(113, 17, lineTotal),
                            L(133, 2, "18,00")})},
                 {20, line({L(6, 7, "P-002"), L(18, 66, "ARRUELA LISA"), L(86, 3, "120"),
                            L(92, 3, "UN"), L(96, 7, "400,000"), R(103, 9, "1234,50"),
                            R(113, 17, "493.800,00"), L(133, 2, "7,")})},
                 {21, " "},
                 {25, " "},
                 {28, line({R(2, 20, wide('1')), R(27, 23, wide('2')), R(55, 22, wide('3')),
                            R(82, 22, wide('4')), R(109, 22, wide('5'))})},
                 {30, line({R(2, 20, "10,00"), R(27, 23, "5,50"), R(55, 22, "0,25"),
                            R(82, 22, "80,04"), R(109, 22, "1.696,54")})},
                 {33, line({L(2, 59, 't'), L(77, 2, 'q'), L(84, 13, 'p'), L(99, 2, 'v'),
                            L(105, 27, " 2.345.678/0001-10")})},
                 {35, line({L(2, 60, 'l'), L(66, 32, 'w'), L(99, 2, 's'), L(103, 20, 'k')})},
                 {37, line({R(2, 17, "12,000"), L(25, 17, "VOLUME"), L(47, 15, ""), L(67, 21, ""),
                            R(93, 18, "123.456.789.012.345,000"), R(114, 20, "1.200,000")})},
                 {40, references},
                 {41, condition},
                 {42, parcelsRow},
                 {43, "  "},
                 {44, line({T(2, ruler(1, 62))})},
                 {45, line({T(2, ruler(63, 62))})},
                 {46, line({T(2, ruler(125, 62))})},
                 {47, line({T(2, ruler(187, 62))})},
                 {51, line({T(124, "004567")})}});
}

TEST(ImprimeNF2801, EveryLine) {
    expectPaper(printed(of2801(), fullNote()), 51,
                {{1, line({T(156, "004567")})},
                 {2, line({T(111, "X")})},
                 {7, line({L(2, 36, 'n'), L(41, 12, 'c')})},
                 {10, line({L(2, 100, 'r'), L(115, 28, "12.345.678/0001-95"), L(146, 10, 'd')})},
                 {12, line({L(2, 88, 'e'), L(93, 24, 'b'), L(121, 12, "01310-100")})},
                 {14, line({L(2, 68, 'm'), L(73, 22, 'f'), L(96, 4, 'u'), L(115, 28, 'i')})},
                 {18, line({L(2, 7, 'P'), L(13, 92, 'D'), L(108, 4, "oSSS"), L(114, 8, 'U'),
                            L(123, 8, "10000000,000"), R(133, 13, unitPrice), R(147, 13, lineTotal),
                            L(162, 2, "18,00")})},
                 {19, line({L(2, 7, "P-002"), L(13, 92, "ARRUELA LISA"), L(108, 4, "120"),
                            L(114, 8, "UN"), L(123, 8, "400,000"), R(133, 13, "1234,50"),
                            R(147, 13, "493.800,00"), L(162, 2, "7,")})},
                 {20, " "},
                 {24, " "},
                 {26, line({R(2, 26, wide('1')), R(30, 26, wide('2')), R(58, 38, wide('3')),
                            R(98, 30, wide('4')), R(130, 34, wide('5'))})},
                 {28, line({R(2, 26, "10,00"), R(30, 26, "5,50"), R(58, 38, "0,25"),
                            R(98, 30, "80,04"), R(130, 34, "1.696,54")})},
                 {31, line({L(2, 70, 't'), L(96, 2, 'q'), L(103, 18, 'p'), L(123, 2, 'v'),
                            L(129, 27, " 2.345.678/0001-10")})},
                 {33, line({L(2, 70, 'l'), L(74, 46, 'w'), L(123, 2, 's'), L(131, 36, 'k')})},
                 {35, line({R(2, 18, "12,000"), L(23, 30, "VOLUME"), L(55, 20, ""), L(77, 28, ""),
                            R(107, 27, "123.456.789.012.345,000"), R(136, 28, "1.200,000")})},
                 {38, references},
                 {39, condition},
                 {40, parcelsRow},
                 {41, "  "},
                 {42, line({T(2, ruler(1, 62))})},
                 {43, line({T(2, ruler(63, 62))})},
                 {44, line({T(2, ruler(125, 62))})},
                 {45, line({T(2, ruler(187, 62))})},
                 {48, line({T(134, "004567")})}});
}

TEST(ImprimeNF1581, SetUpsGoInAJobOfTheirOwn) {
    EXPECT_EQ(print(of1581(), fullNote().xml())[0].writes, std::vector<std::string>{" \x0F"});
    EXPECT_EQ(print(of2801(), fullNote().xml())[0].writes, std::vector<std::string>{" \x0F\x1BM"});
}

// Six parcels fill the block; what is left of their last row has no line end and
// stands ahead of the legal text.
TEST(ImprimeNF1581, SixParcelsMoveTheFirstLegalLineRight) {
    for (const notes::Form* form : {&of1581(), &of2801()}) {
        const std::string three = printed(*form, withParcels(3));
        const std::string six = printed(*form, withParcels(6));
        const std::vector<std::string> lines = linesOf(six);
        const std::size_t first = form == &of1581() ? 42 : 40;
        EXPECT_EQ(lines[first - 1], line({T(3, "1)"), L(5, 10, "VENC1"), R(15, 9, "1,50"),
                                          T(25, "2)"), L(27, 10, "VENC2"), R(37, 9, "2,50"),
                                          T(47, "3)"), L(49, 10, "VENC3"), R(59, 9, "3,50")}));
        EXPECT_EQ(lines[first], line({T(3, "4)"), L(5, 10, "VENC4"), R(15, 9, "4,50"), T(25, "5)"),
                                      L(27, 10, "VENC5"), R(37, 9, "5,50"), T(47, "6)"),
                                      L(49, 10, "VENC6"), R(59, 9, "6,50")}));
        EXPECT_EQ(lines[first + 1], "   " + ruler(1, 62));
        EXPECT_EQ(below(six, first + 3), below(three, first + 3));
    }
}

TEST(ImprimeNF1581, TheObservationHasItsLabelAndEmptyPiecesPrint) {
    NoteText note = fullNote();
    for (Attributes& item : note.items) {
        item["DC_TXT_LEG_NF"] = "REDUZIDA";
    }
    note.head["DC_OBS"] = "FRAGIL";
    note.head["ID_VND_DIR"] = "0";
    const std::vector<std::string> lines = linesOf(printed(of1581(), note));
    EXPECT_EQ(lines[39],
              line({L(2, 20, "N/PED: "), T(22, ", "), L(24, 20, labelled("S/PED: ", 'y')),
                    T(44, ", "), L(46, 30, labelled("VEND: ", 'z'))}));
    EXPECT_EQ(lines[43], " REDUZIDA OBS.: FRAGIL");
    EXPECT_EQ(lines[44], " ");
    EXPECT_EQ(lines[45], " ");
    EXPECT_EQ(lines[46], " ");
    EXPECT_EQ(lines[47], "");
}

}  // namespace
}  // namespace tarn::test
