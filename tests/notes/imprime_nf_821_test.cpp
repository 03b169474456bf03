// The forms of companies 821 and 3301, which list the fiscal classes of their items.
#include <gtest/gtest.h>

#include "notes/layouts/layouts.h"
#include "tests/notes/wide_note.h"

namespace tarn::test {
namespace {

using Lines = std::vector<std::string>;

const notes::Form& form821() {
    return notes::imprimeNF_821.formFor(1);
}
const notes::Form& form3301() {
    return notes::imprimeNF_3301.formFor(1);
}

const std::string classes = "CL. FISCAL -  12345) 84818099  2) 84811 ";

const std::vector<Line> paper821 = {
    {1, " "},
    {3, line({T(110, "X"), T(151, "004567")})},
    {9, line({L(2, 50, 'n'), L(54, 8, 'c')})},
    {12, line({L(2, 100, 'r'), L(103, 28, "12.345.678/0001-95"), L(143, 14, 'd')})},
    {14, line({L(2, 90, 'e'), L(93, 35, 'b'), L(128, 12, "01310-100"), L(146, 14, "")})},
    {15, line({L(2, 74, 'm'), L(78, 16, 'f'), L(95, 3, 'u'), L(108, 28, 'i'), L(142, 14, "")})},
    {17, line({L(26, 10, "DOC-1"), L(51, 10, "07/02/2009"), R(71, 10, "100,50"), L(101, 10, 'N'),
               L(126, 10, 'V'), R(146, 10, "123456789012345,00")})},
    {18, line({L(26, 10, "DOC-3"), L(51, 10, "07/04/2009"), R(71, 10, "1300,25")})},
    {22,
     line({L(2, 10, 'P'), L(15, 55, 'D'), L(78, 4, 'I'), L(86, 4, "12345"), L(91, 4, "oSSS"),
           L(96, 6, 'U'), L(102, 7, "10000000,000"), R(110, 13, unitPrice), R(123, 19, lineTotal),
           R(146, 2, "18"), R(150, 2, "12,50"), R(154, 6, "77777777,25")})},
    {23, line({L(2, 10, "P-002"), L(15, 55, "ARRUELA LISA"), L(78, 4, "0000"), L(86, 4, "2"),
               L(91, 4, "120"), L(96, 6, "UN"), L(102, 7, "400,000"), R(110, 13, "1234,50"),
               R(123, 19, "493.800,00"), R(146, 2, "7"), R(150, 2, "5,00"), R(154, 6, "3,50")})},
    {24, " "},
    {28, " "},
    {29, line({T(2, classes)})},
    {32, line({R(7, 25, wide('1')), R(42, 23, wide('2')), R(72, 22, wide('3')),
               R(101, 22, wide('4')), R(130, 25, wide('5'))})},
    {34, line({R(7, 25, "10,00"), R(42, 23, "5,50"), R(72, 22, "0,25"), R(101, 22, "80,04"),
               R(130, 25, "1.696,54")})},
    {37, line({L(2, 76, 't'), L(100, 2, 'q'), L(110, 13, 'p'), L(129, 2, 'v'),
               L(135, 22, " 2.345.678/0001-10")})},
    {39, line({L(2, 65, 'l'), L(85, 38, 'w'), L(129, 2, 's'), L(134, 20, 'k')})},
    {41, line({R(2, 13, "12,000"), L(20, 17, "VOLUME"), L(42, 25, ""), L(69, 24, ""),
               R(120, 22, "123.456.789.012.345,000"), R(143, 12, "1.200,000")})},
    {43, line({T(4, ruler(1, 85))})},
    {44, line({L(2, 85, ruler(601, 85))})},
    {47, line({L(2, 28, 'x'), L(35, 28, 'z'), L(68, 28, 'y')})},
    {50, line({T(170, "004567")})},
};

const std::vector<Line> paper3301 = {
    {1, " "},
    {3, line({T(91, "X"), T(129, "004567")})},
    {9, line({L(2, 48, 'n'), L(51, 8, 'c')})},
    {12, line({L(2, 87, 'r'), L(92, 28, "12.345.678/0001-95"), L(124, 14, 'd')})},
    {14, line({L(2, 64, 'e'), L(67, 35, 'b'), L(103, 12, "01310-100"), L(121, 14, "")})},
    {15, line({L(2, 50, 'm'), L(64, 16, 'f'), L(86, 3, 'u'), L(99, 28, 'i'), L(133, 14, "")})},
    {19, line({L(2, 10, 'P'), L(13, 56, 'D'), L(73, 4, "12345"), L(78, 4, "oSSS"), L(84, 4, 'U'),
               L(89, 5, "10000000,000"), R(96, 12, unitPrice), R(108, 13, lineTotal),
               R(123, 2, "18"), R(128, 2, "12,50"), R(131, 7, "77777777,25")})},
    {20, line({L(2, 10, "P-002"), L(13, 56, "ARRUELA LISA"), L(73, 4, "2"), L(78, 4, "120"),
               L(84, 4, "UN"), L(89, 5, "400,000"), R(96, 12, "1234,50"), R(108, 13, "493.800,00"),
               R(123, 2, "7"), R(128, 2, "5,00"), R(131, 7, "3,50")})},
    {21, " "},
    {25, " "},
    {26, line({T(2, classes)})},
    {29, line({R(5, 21, wide('1')), R(29, 21, wide('2')), R(59, 21, wide('3')),
               R(87, 21, wide('4')), R(115, 21, wide('5'))})},
    {31, line({R(5, 21, "10,00"), R(29, 21, "5,50"), R(59, 21, "0,25"), R(87, 21, "80,04"),
               R(115, 21, "1.696,54")})},
    {34, line({L(2, 72, 't'), L(79, 2, 'q'), L(87, 13, 'p'), L(105, 2, 'v'),
               L(112, 22, " 2.345.678/0001-10")})},
    {36, line({L(2, 70, 'l'), L(74, 30, 'w'), L(105, 2, 's'), L(112, 20, 'k')})},
    {38, line({R(2, 13, "12,000"), L(20, 17, "VOLUME"), L(39, 25, ""), L(66, 24, ""),
               R(91, 22, "123.456.789.012.345,000"), R(123, 12, "1.200,000")})},
    {41, line({T(4, ruler(1, 58))})},
    {42, line({L(2, 58, ruler(601, 58))})},
    {49, line({T(142, "004567")})},
};

TEST(ImprimeNF821, EveryLine) {
    expectPaper(printed(form821(), wideNote()), 53, paper821);
}

TEST(ImprimeNF3301, EveryLine) {
    expectPaper(printed(form3301(), wideNote()), 52, paper3301);
}

TEST(ImprimeNF821, TheNoteBeginsWithTheLineEndsBehindTheSetUp) {
    const std::vector<Job> jobs = print(form821(), wideNote().xml());
    ASSERT_EQ(jobs.size(), 2U);
    EXPECT_EQ(jobs[0].writes, Lines{" \x0F\x1BM"});
    EXPECT_EQ(jobs[1].writes[0], " \r\n\r\n");
    EXPECT_EQ(print(form3301(), wideNote().xml())[0].writes, Lines{" \x0F\x1B\x1BG"});
}

TEST(ImprimeNF821, AnEntryMovesTheMarkAndNotTheNumber) {
    NoteText note = wideNote();
    note.head["Ent_Sai"] = "E";
    EXPECT_EQ(rows(printed(form821(), note), 3, 3), Lines{line({T(122, "X"), T(151, "004567")})});
    EXPECT_EQ(rows(printed(form3301(), note), 3, 3), Lines{line({T(107, "X"), T(129, "004567")})});
}

std::vector<Cell> left821(std::size_t n) {
    return {L(26, 10, numbered("D", n)), L(51, 10, numbered("VENC", n)),
            R(71, 10, numbered("", n) + ",50")};
}
std::string row821(std::size_t n) {
    std::vector<Cell> cells = left821(n);
    const std::vector<Cell> beside = {L(101, 10, numbered("D", n + 1)),
                                      L(126, 10, numbered("VENC", n + 1)),
                                      R(146, 10, numbered("", n + 1) + ",50")};
    cells.insert(cells.end(), beside.begin(), beside.end());
    return line(cells);
}

TEST(ImprimeNF821, FourParcelsStandOneLineHigher) {
    const std::string margin(25, ' ');
    const auto block = [](int count, std::size_t to) {
        return rows(printed(form821(), wideParcels(count)), 17, to);
    };
    EXPECT_EQ(block(0, 21), (Lines{" ", "", "", "", ""}));
    EXPECT_EQ(block(1, 21), (Lines{line(left821(1)), "", "", "", ""}));
    EXPECT_EQ(block(2, 21), (Lines{row821(1), margin, "", "", ""}));
    EXPECT_EQ(block(3, 21), (Lines{row821(1), line(left821(3)), "", "", ""}));
    EXPECT_EQ(block(4, 20), (Lines{row821(1), row821(3), margin, ""}));
    EXPECT_EQ(block(5, 21), (Lines{" Numero de Parcelas maior do que 4", "", "", "", ""}));
    for (const int count : {0, 1, 2, 3, 4, 5, 12}) {
        const std::size_t first = count == 4 ? 21 : 22;
        EXPECT_EQ(block(count, first).back().substr(0, 5), " PPPP") << count;
    }
}

TEST(ImprimeNF3301, ParcelsAreNotLookedAt) {
    NoteText note = wideNote();
    note.head["QTDE_PARC"] = "muitas";
    note.head["VL_PRN_DOC1"] = "nada";
    expectPaper(printed(form3301(), note), 52, paper3301);
}

TEST(ImprimeNF821, DiscountsAreNotLookedAt) {
    NoteText note = wideNote();
    note.items[0]["VL_DSC"] = "nada";
    expectPaper(printed(form821(), note), 53, paper821);
    expectPaper(printed(form3301(), note), 52, paper3301);
}

TEST(ImprimeNF821, TheClassLineKeepsTheOrderOfTheItems) {
    NoteText note = wideItems(4);
    note.items[0]["GF_AGRUP"] = "9";
    note.items[1]["GF_AGRUP"] = "";
    note.items[2].erase("ID_CLA_FIS");
    note.items[3]["GF_AGRUP"] = "9";
    const std::string expected = " CL. FISCAL -  9) 84811  2)   9) 84811 ";
    EXPECT_EQ(linesOf(printed(form821(), note))[28], expected);
    EXPECT_EQ(linesOf(printed(form3301(), note))[25], expected);
    for (Attributes& item : note.items) {
        item.erase("GF_AGRUP");
    }
    EXPECT_EQ(linesOf(printed(form821(), note))[28], " CL. FISCAL - ");
}

TEST(ImprimeNF821, DroppedRowsAndServicesHaveNoClass) {
    NoteText note = wideItems(7);
    for (std::size_t i = 0; i < 7; ++i) {
        note.items[i]["GF_AGRUP"] = numbered("", i + 1);
    }
    note.items[1]["IC_TP_CAD"] = "S";
    const Lines lines = linesOf(printed(form821(), note));
    EXPECT_EQ(lines[28], " CL. FISCAL -  1) 84811  3) 84811  4) 84811  5) 84811  6) 84811 ");
}

TEST(ImprimeNF821, TheItemsOperationCodeHoldsFourCharacters) {
    const std::pair<std::string, std::string> codes[] = {
        {"0", "0000"}, {"5102", "5102"}, {"51021", "5102"}, {"", "    "}, {"00", "00  "}};
    for (const auto& [code, shown] : codes) {
        NoteText note = wideItems(1);
        note.items[0]["CFOP_ITEM"] = code;
        EXPECT_EQ(linesOf(printed(form821(), note))[21].substr(77, 8), shown + "    ") << code;
    }
    NoteText note = wideItems(1);
    note.items[0].erase("CFOP_ITEM");
    EXPECT_EQ(linesOf(printed(form821(), note))[21].substr(77, 8), "        ");
}

// The point of a quantity groups, in its own field and in the total.
TEST(ImprimeNF821, TwelveAndAHalfIsTwelveThousandFiveHundred) {
    NoteText note = wideItems(2);
    note.items[0]["QTDE"] = "12.500";
    note.items[0]["VALOR_UN"] = "2";
    note.items[1].erase("QTDE");
    note.items[1]["VALOR_UN"] = "2";
    const auto amounts = [](const std::string& quantity, const std::string& total) {
        return line({L(2, 7, quantity), R(10, 13, "2,00"), R(23, 19, total)}).substr(1);
    };
    const Lines lines = linesOf(printed(form821(), note));
    EXPECT_EQ(lines[21].substr(101, 40), amounts("12500,000", "25.000,00"));
    EXPECT_EQ(lines[22].substr(101, 40), amounts("5,000", "10,00"));
    EXPECT_EQ(linesOf(printed(form3301(), note))[18].substr(88, 5), "12500");
}

TEST(ImprimeNF821, TheLegalTextAndTheObservationHaveALineEach) {
    EXPECT_EQ(rows(printed(form821(), wideTexts("", "")), 43, 46),
              (Lines{"   ", std::string(86, ' '), "", ""}));
    EXPECT_EQ(rows(printed(form821(), wideTexts("REDUZIDA", "URGENTE")), 43, 44),
              (Lines{"   REDUZIDA", line({L(2, 85, "URGENTE")})}));
    EXPECT_EQ(rows(printed(form3301(), wideTexts("", "")), 41, 43),
              (Lines{"   ", std::string(59, ' '), ""}));
}

TEST(ImprimeNF821, OrderReferencesHaveNoLabels) {
    NoteText note = wideNote();
    note.head["ID_VND_DIR"] = "0";
    note.head["VENDEDOR"] = "MARIA";
    note.head["NR_PED_CLI"] = "PC-77";
    EXPECT_EQ(linesOf(printed(form821(), note))[46],
              line({L(2, 28, ""), L(35, 28, "MARIA"), L(68, 28, "PC-77")}));
}

}  // namespace
}  // namespace tarn::test
