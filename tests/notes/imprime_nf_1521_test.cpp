// The form of company 1521.
#include <gtest/gtest.h>

#include "notes/layouts/layouts.h"
#include "tests/notes/wide_note.h"

namespace tarn::test {
namespace {

const notes::Form& form() {
    return notes::imprimeNF_1521.formFor(1);
}

using Lines = std::vector<std::string>;

// One parcel is one call.
std::string parcel(const std::string& document, const std::string& value, const std::string& date) {
    return line({L(5, 10, document), R(19, 18, value), L(43, 10, date)});
}
std::string parcel(std::size_t n) {
    return parcel(numbered("D", n), numbered("", n) + ",50", numbered("VENC", n));
}

const std::vector<Line> paper = {
    {1, line({T(150, "004567")})},
    {2, line({T(110, "X")})},
    {7, line({L(5, 50, 'n'), L(60, 12, 'c')})},
    {9, line({L(5, 110, 'r'), L(118, 28, "12.345.678/0001-95"), L(153, 14, 'd')})},
    {11, line({L(5, 80, 'e'), L(87, 25, 'b'), L(122, 12, "01310-100"), L(138, 14, "")})},
    {12, line({L(5, 50, 'm'), L(67, 18, 'f'), L(99, 3, 'u'), L(117, 28, 'i'), L(151, 14, "")})},
    {17,
     line({L(5, 40, 'E'), L(47, 20, 'B'), L(69, 20, 'M'), L(91, 2, 'H'), L(95, 12, "04002-000")})},
    {19, line({T(5, "UM MIL, SEISCENTOS E NOVENTA E SEIS REAIS E CINQUENTA E QUATRO CENTAVOS")})},
    {20, parcel("DOC-1", "100,50", "07/02/2009") +
             parcel("NNNNNNNNNN", "123456789012345,00", "VVVVVVVVVV") +
             parcel("DOC-3", "1300,25", "07/04/2009")},
    {22, " "},
    {31, line({L(5, 16, 'P'), L(23, 43, 'D'), L(68, 4, 'T'), L(73, 4, "oSSS"), L(79, 4, 'U'),
               R(85, 7, "10000000,000"), R(93, 18, unitPrice), R(113, 28, lineTotal),
               L(143, 4, "18,00")})},
    {32, line({L(5, 16, "P-002"), L(23, 43, "ARRUELA LISA"), L(68, 4, "B"), L(73, 4, "120"),
               L(79, 4, "UN"), R(85, 7, "400,000"), R(93, 18, "1234,50"), R(113, 28, "493.800,00"),
               L(143, 4, "7,00")})},
    {33, " "},
    {37, " "},
    // The label's blank stands in column 6.
    {38, line({T(6, " OBS.: " + ruler(601, 148))})},
    {39, line({T(7, ruler(1, 149))})},
    {40, line({T(7, ruler(150, 255))})},
    {41, line({T(5, "ENDERECO DE ENTREGA:"), L(27, 40, 'F'), L(69, 20, 'G'), L(91, 12, "70040-010"),
               L(107, 20, 'J'), L(129, 20, 'K')})},
    {45, line({R(2, 26, wide('1')), R(31, 24, wide('2')), R(60, 30, wide('3')),
               R(93, 30, wide('4')), R(126, 30, wide('5'))})},
    {46, line({R(2, 26, "10,00"), R(31, 24, "5,50"), R(60, 30, "0,25"), R(93, 30, "80,04"),
               R(126, 30, "1.696,54")})},
    {49, line({L(5, 70, 't'), L(96, 2, 'q'), L(110, 13, 'p'), L(126, 2, 'v'),
               L(133, 27, " 2.345.678/0001-10")})},
    {51, line({L(5, 68, 'l'), L(77, 42, 'w'), L(125, 2, 's'), L(132, 27, 'k')})},
    {52, line({R(2, 20, "12,000"), L(29, 34, "VOLUME"), L(66, 14, ""), L(83, 21, ""),
               R(108, 22, "123.456.789.012.345,000"), R(133, 34, "1.200,000")})},
};

TEST(ImprimeNF1521, EveryLine) {
    expectPaper(printed(form(), wideNote()), 57, paper);
}

TEST(ImprimeNF1521, TheSetUpHasAJobOfItsOwn) {
    const std::vector<Job> jobs = print(form(), wideNote().xml());
    ASSERT_EQ(jobs.size(), 2U);
    EXPECT_EQ(jobs[0].writes, Lines{" \x1B#3"});
    EXPECT_TRUE(jobs[0].ended);
    EXPECT_EQ(jobs[1].writes[0], line({T(150, "004567")}) + "\r\n");
    // Three parcels, then the line ends behind them.
    EXPECT_EQ(jobs[1].writes[8], parcel("DOC-1", "100,50", "07/02/2009"));
    EXPECT_EQ(jobs[1].writes[10], parcel("DOC-3", "1300,25", "07/04/2009") + "\r\n\r\n");
    EXPECT_EQ(jobs[1].writes[11], " \r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n");
}

TEST(ImprimeNF1521, ParcelsStandSideBySideTwoLinesApart) {
    const auto block = [](int count) { return rows(printed(form(), wideParcels(count)), 20, 31); };
    const auto expectBlock = [&](int count,
                                 const std::vector<std::pair<std::size_t, std::string>>& told) {
        SCOPED_TRACE(count);
        Lines expected(11);
        for (const auto& [number, text] : told) {
            expected[number - 20] = text;
        }
        Lines found = block(count);
        EXPECT_EQ(found.back().substr(0, 8), "    PPPP") << "the first item";
        found.pop_back();
        EXPECT_EQ(found, expected);
    };
    const std::string first = parcel(1) + parcel(2) + parcel(3);
    const std::string second = parcel(4) + parcel(5) + parcel(6);
    const std::string third = parcel(7) + parcel(8) + parcel(9);
    expectBlock(0, {{20, " "}});
    expectBlock(1, {{20, parcel(1) + " "}});
    expectBlock(2, {{20, parcel(1) + parcel(2) + " "}});
    expectBlock(3, {{20, first}, {22, " "}});
    expectBlock(5, {{20, first}, {22, parcel(4) + parcel(5) + " "}});
    expectBlock(6, {{20, first}, {22, second}, {24, " "}});
    expectBlock(9, {{20, first}, {22, second}, {24, third}, {26, " "}});
    expectBlock(12, {{20, first},
                     {22, second},
                     {24, third},
                     {26, parcel(10) + parcel(11) + parcel(12)},
                     {28, " "}});
    expectBlock(13, {{20, " Numero de Parcelas maior do que 12! "}});
}

TEST(ImprimeNF1521, TheAmountInWordsMayBeEmpty) {
    NoteText note = wideNote();
    note.totals["VALOR_TOT_NF"] = "0";
    EXPECT_EQ(rows(printed(form(), note), 19, 19), Lines{"    "});
    note.totals.erase("VALOR_TOT_NF");
    EXPECT_EQ(rows(printed(form(), note), 19, 19), Lines{"    "});
    note.totals["VALOR_TOT_NF"] = "1";
    EXPECT_EQ(rows(printed(form(), note), 19, 19), Lines{"    UM REAL"});
    note.totals["VALOR_TOT_NF"] = "";
    EXPECT_EQ(linesOf(untilTypeError(form(), note)).size(), 19U);
}

TEST(ImprimeNF1521, EmptyTextsKeepTheirMargins) {
    EXPECT_EQ(rows(printed(form(), wideTexts("", "")), 38, 40),
              (Lines{"     ", "      ", "      "}));
    EXPECT_EQ(rows(printed(form(), wideTexts("REDUZIDA", "")), 38, 40),
              (Lines{"     ", "      REDUZIDA", "      "}));
    EXPECT_EQ(rows(printed(form(), wideTexts("", "URGENTE")), 38, 40),
              (Lines{"      OBS.: URGENTE", "      ", "      "}));
}

TEST(ImprimeNF1521, AddressesPrintTheirTextsAlsoWhenEmpty) {
    NoteText note = wideNote();
    for (const char* name : {"ENDERECO_COB", "BAIRRO_COB", "CEP_COB", "MUNICIPIO_COB", "UF_COB",
                             "ENDERECO_ETG", "BAIRRO_ETG", "CEP_ETG", "MUNICIPIO_ETG", "UF_ETG"}) {
        note.head.erase(name);
    }
    const Lines lines = linesOf(printed(form(), note));
    EXPECT_EQ(lines[16], line({L(95, 12, "00000-000")}));
    EXPECT_EQ(lines[40],
              line({T(5, "ENDERECO DE ENTREGA:"), L(91, 12, "00000-000"), L(129, 20, "")}));
}

}  // namespace
}  // namespace tarn::test
