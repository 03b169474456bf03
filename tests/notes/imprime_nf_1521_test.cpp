// The form of company 1521.
#include <gtest/gtest.h>

#include "notes/layouts/layouts.h"
#include "tests/notes/paper.h"

namespace tarn::test {
namespace {

const notes::Form& form1521() {
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

TEST(ImprimeNF1521, TheSetUpHasAJobOfItsOwn) {
    const std::vector<Job> jobs = print(form1521(), fullNote().xml());
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
    const auto block = [](int count) {
        return rows(printed(form1521(), withParcels(count)), 20, 31);
    };
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
    NoteDraft note = fullNote();
    note.totals["VALOR_TOT_NF"] = "0";
    EXPECT_EQ(rows(printed(form1521(), note), 19, 19), Lines{"    "});
    note.totals.erase("VALOR_TOT_NF");
    EXPECT_EQ(rows(printed(form1521(), note), 19, 19), Lines{"    "});
    note.totals["VALOR_TOT_NF"] = "1";
    EXPECT_EQ(rows(printed(form1521(), note), 19, 19), Lines{"    UM REAL"});
    note.totals["VALOR_TOT_NF"] = "";
    EXPECT_EQ(linesOf(untilTypeError(form1521(), note)).size(), 19U);
}

TEST(ImprimeNF1521, EmptyTextsKeepTheirMargins) {
    EXPECT_EQ(rows(printed(form1521(), withTexts("", "")), 38, 40),
              (Lines{"     ", "      ", "      "}));
    EXPECT_EQ(rows(printed(form1521(), withTexts("REDUZIDA", "")), 38, 40),
              (Lines{"     ", "      REDUZIDA", "      "}));
    EXPECT_EQ(rows(printed(form1521(), withTexts("", "URGENTE")), 38, 40),
              (Lines{"      OBS.: URGENTE", "      ", "      "}));
}

TEST(ImprimeNF1521, AddressesPrintTheirTextsAlsoWhenEmpty) {
    NoteDraft note = fullNote();
    for (const char* name : {"ENDERECO_COB", "BAIRRO_COB", "CEP_COB", "MUNICIPIO_COB", "UF_COB",
                             "ENDERECO_ETG", "BAIRRO_ETG", "CEP_ETG", "MUNICIPIO_ETG", "UF_ETG"}) {
        note.head.erase(name);
    }
    const Lines lines = linesOf(printed(form1521(), note));
    EXPECT_EQ(lines[16], line({L(95, 12, "00000-000")}));
    EXPECT_EQ(lines[40],
              line({T(5, "ENDERECO DE ENTREGA:"), L(91, 12, "00000-000"), L(129, 20, "")}));
}

}  // namespace
}  // namespace tarn::test
