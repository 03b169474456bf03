// The form of companies 3081 and 3141.
#include <gtest/gtest.h>

#include "notes/layouts/layouts.h"
#include "tests/notes/wide_note.h"

namespace tarn::test {
namespace {

using Lines = std::vector<std::string>;

const notes::Form& form() {
    return notes::imprimeNF_3081.formFor(1);
}

const std::vector<Line> paper = {
    {1, line({T(142, "004567")})},
    {3, line({T(99, "X")})},
    {7, line({L(2, 40, 'n'), L(49, 7, 'c')})},
    {10, line({L(2, 75, 'r'), L(97, 18, "12.345.678/0001-95"), L(139, 14, 'd')})},
    {12, line({L(2, 60, 'e'), L(64, 18, 'o'), L(84, 28, 'b'), L(120, 12, "01310-100"),
               L(132, 10, "")})},
    {14, line({L(2, 40, 'm'), L(62, 20, 'f'), L(88, 3, 'u'), L(99, 30, 'i'), L(135, 14, "")})},
    {17, line({L(18, 10, "DOC-1"), R(30, 10, "100,50"), L(52, 10, "07/02/2009"), L(84, 10, 'N'),
               R(96, 10, "123456789012345,00"), L(118, 10, 'V')})},
    {18, line({L(18, 10, "DOC-3"), R(30, 10, "1300,25"), L(52, 10, "07/04/2009")})},
    {20,
     line({L(2, 60, 'E'), T(64, "-"), L(67, 18, 'O'), T(87, "-"), L(90, 20, 'B'), T(112, "-"),
           L(115, 20, 'M'), T(137, "-"), L(140, 2, 'H'), T(144, "- "), L(146, 12, "04002-000")})},
    {23, line({L(2, 10, 'P'), L(13, 56, 'D'), L(74, 4, "12345"), L(80, 4, "oSSS"), L(86, 4, 'U'),
               L(92, 5, "10000000"), R(106, 12, unitPrice), R(126, 13, lineTotal),
               R(141, 2, "18,00"), R(148, 2, "12,50"), R(155, 6, "77777777,25")})},
    {24, line({L(2, 10, "P-002"), L(13, 56, "ARRUELA LISA"), L(74, 4, "2"), L(80, 4, "120"),
               L(86, 4, "UN"), L(92, 5, "400"), R(106, 12, "1234,50"), R(126, 13, "493.800,00"),
               R(141, 2, "7,00"), R(148, 2, "5,00"), R(155, 6, "3,50")})},
    {25, " "},
    {29, " "},
    {30, line({T(2, "ENDERE\xC7O DE ENTREGA - "), L(24, 60, 'F'), T(85, "- "), L(87, 18, 'Q'),
               T(106, "- "), L(108, 18, 'G'), T(127, "- "), L(129, 10, 'J'), T(140, "- "),
               L(142, 2, 'K'), T(145, "- "), L(147, 12, "70040-010")})},
    {31, line({T(2, "CL. FISCAL -  12345) 84818099  2) 84811 ")})},
    {34, line({R(14, 16, wide('1')), R(49, 10, wide('2')), R(72, 20, wide('3')),
               R(107, 16, wide('4')), R(146, 15, wide('5'))})},
    {35, line({R(14, 16, "10,00"), R(49, 10, "5,50"), R(72, 20, "0,25"), R(107, 16, "80,04"),
               R(146, 15, "1.696,54")})},
    {37, line({L(2, 60, 't'), L(93, 2, 'q'), L(101, 11, 'p'), L(120, 2, 'v'),
               L(126, 18, " 2.345.678/0001-10")})},
    {39, line({L(2, 60, 'l'), L(77, 35, 'w'), L(121, 2, 's'), L(127, 18, 'k')})},
    {41, line({R(13, 11, "12,000"), L(26, 11, "VOLUME"), L(53, 8, ""), L(75, 24, ""),
               R(122, 16, "123.456.789.012.345,000"), R(152, 9, "1.200,000")})},
    {42, line({T(2, ruler(1, 44))})},
    {43, line({T(2, ruler(45, 44))})},
    {44, line({T(2, ruler(89, 44))})},
    {45, line({T(2, ruler(601, 44))})},
    {46, line({T(2, ruler(645, 44))})},
    {47, line({T(2, ruler(689, 44))})},
    {52, line({T(10, "004567")})},
};

TEST(ImprimeNF3081, EveryLine) {
    expectPaper(printed(form(), wideNote()), 57, paper);
}

TEST(ImprimeNF3081, TheNoteBeginsWithItsNumber) {
    const std::vector<Job> jobs = print(form(), wideNote().xml());
    ASSERT_EQ(jobs.size(), 2U);
    EXPECT_EQ(jobs[0].writes, Lines{" \x0F\x1BM"});
    EXPECT_EQ(jobs[1].writes[0], line({T(142, "004567")}) + "\r\n\r\n");
}

std::string leftOf(std::size_t n) {
    return line({L(18, 10, numbered("D", n)), R(30, 10, numbered("", n) + ",50"),
                 L(52, 10, numbered("VENC", n))});
}
std::string row(std::size_t n) {
    return leftOf(n) +
           line({L(24, 10, numbered("D", n + 1)), R(36, 10, numbered("", n + 1) + ",50"),
                 L(58, 10, numbered("VENC", n + 1))})
               .substr(1);
}

TEST(ImprimeNF3081, TwoParcelsStandOneLineLower) {
    const std::string margin(17, ' ');
    const auto block = [](int count, std::size_t to) {
        const Lines found = rows(printed(form(), wideParcels(count)), 17, to);
        EXPECT_EQ(found.back().substr(0, 5), " EEEE") << count;
        return Lines(found.begin(), found.end() - 1);
    };
    EXPECT_EQ(block(0, 20), (Lines{" ", "", ""}));
    EXPECT_EQ(block(1, 20), (Lines{leftOf(1), "", ""}));
    EXPECT_EQ(block(2, 21), (Lines{row(1), margin, "", ""}));
    EXPECT_EQ(block(3, 20), (Lines{row(1), leftOf(3), ""}));
    EXPECT_EQ(block(4, 20), (Lines{row(1), row(3), margin}));
    EXPECT_EQ(block(5, 20), (Lines{" Numero de Parcelas maior do que 4", "", ""}));
    EXPECT_EQ(linesOf(printed(form(), wideParcels(2))).size(), 59U);
}

TEST(ImprimeNF3081, AQuantityPrintsAsTheServerSendsIt) {
    const std::pair<std::string, std::string> quantities[] = {
        {"12.500", "12,50"}, {"2", "2    "}, {"0.25", "0,25 "}, {"1,5", "1,5  "}};
    const std::string totals[] = {"25,00", "4,00", "0,50", "3,00"};
    for (std::size_t i = 0; i < std::size(quantities); ++i) {
        NoteText note = wideItems(1);
        note.items[0]["QTDE"] = quantities[i].first;
        note.items[0]["VALOR_UN"] = "2";
        const std::string item = linesOf(printed(form(), note))[22];
        EXPECT_EQ(item.substr(91, 5), quantities[i].second);
        EXPECT_EQ(item.substr(125, 13), R(1, 13, totals[i]).text);
    }
    NoteText note = wideItems(1);
    note.items[0].erase("QTDE");
    const std::string item = linesOf(printed(form(), note))[22];
    EXPECT_EQ(item.substr(91, 5), "0    ");
    EXPECT_EQ(item.substr(125, 13), "         0,00");
    note.items[0]["QTDE"] = "";
    EXPECT_EQ(linesOf(untilTypeError(form(), note)).size(), 23U);
}

TEST(ImprimeNF3081, TheHyphensStandAlsoBetweenEmptyParts) {
    NoteText note = wideNote();
    for (const std::string part : {"ENDERECO", "COMPLEMENTO", "BAIRRO", "CEP", "MUNICIPIO", "UF"}) {
        note.head.erase(part + "_COB");
        note.head.erase(part + "_ETG");
    }
    const Lines lines = linesOf(printed(form(), note));
    EXPECT_EQ(lines[19], line({T(64, "-"), T(87, "-"), T(112, "-"), T(137, "-"), T(144, "- "),
                               L(146, 12, "00000-000")}));
    EXPECT_EQ(lines[29], line({T(2, "ENDERE\xC7O DE ENTREGA - "), T(85, "- "), T(106, "- "),
                               T(127, "- "), T(140, "- "), T(145, "- "), L(147, 12, "00000-000")}));
}

TEST(ImprimeNF3081, TextsInPiecesOf44) {
    const auto bands = [](const std::string& legal, const std::string& observation) {
        const Lines lines = rows(printed(form(), wideTexts(legal, observation)), 42, 52);
        EXPECT_EQ(lines.back(), line({T(10, "004567")}));
        return Lines(lines.begin(), lines.end() - 1);
    };
    EXPECT_EQ(bands("", ""), (Lines{" ", "", "", " ", "", "", "", "", "", ""}));
    EXPECT_EQ(bands(ruler(1, 88), ruler(1, 45)),
              (Lines{" " + ruler(1, 44), " " + ruler(45, 44), "", " " + ruler(1, 44),
                     " " + ruler(45, 1), "", "", "", "", ""}));
}

TEST(ImprimeNF3081, ClassesStandBelowTheDeliveryAddress) {
    NoteText note = wideItems(3);
    note.items[1].erase("GF_AGRUP");
    EXPECT_EQ(linesOf(printed(form(), note))[30], " CL. FISCAL -  2) 84811  2) 84811 ");
}

}  // namespace
}  // namespace tarn::test
