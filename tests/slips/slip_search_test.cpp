// The grid's rows as they are read from the answer of the search.
#include "slips/slip_search.h"

#include <gtest/gtest.h>

#include "gateway/xml_document.h"
#include "tests/support/answers.h"
#include "tests/support/boxes.h"
#include "tests/support/sessions.h"
#include "tests/support/test_environment.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {

using Cells = std::vector<std::string>;

// Columns 2 to 29 of the one row.
Cells row(const std::string& attributes) {
    XmlDocument answer;
    EXPECT_TRUE(answer.loadXML(answers::rowset("<z:row " + attributes + "/>")));
    const std::vector<GridRow> documents = slipRows(answer);
    EXPECT_EQ(documents.size(), 1U);
    const Cells& cells = documents.at(0).cells;
    EXPECT_EQ(cells.size(), 29U);
    return {cells.begin() + 1, cells.end()};
}
std::string cell(const std::string& attributes, int column) {
    return row(attributes).at(static_cast<std::size_t>(column) - 2);
}

constexpr char whole[] =
    "SG_FIL='SP' DT_VNC_DOC_FMA='10/04/2012' DC_TIP_DOC='DUPLICATA' NR_DOC='4567/1' "
    "NM_CLI_ETB='JOSÉ &amp; FILHOS' DT_EMS_DOC='05/03/2012' DC_LG_CPL='RUA A, 1' "
    "VL_PRN_DOC='1234.5' CD_CEP='01310-100' NM_MUN='SÃO PAULO' SG_UF='SP' PES_JUR='1' "
    "NR_CGC_CPL='191' CD_ICR_EST='110.042.490.114' TIPO_DOCTO='DOCTO_COBRANCA' "
    "ID_NR_CTL='C1' DC_REF_REC='REFERENTE A' TX_JUR_DIA='0.033' PC_MULTA='2' "
    "JUROS_AO_DIA='.415' VL_OUT_DSP='7.50' ID_ETB_TARN='3381' ID_TIP_DOC='201' "
    "CD_AGE_BAN='1123' ID_PES_BAN='1016' CD_EXT='X9' NR_DOC_NF='4567'";

TEST(GridRow, HasAColumnForEachAttribute) {
    EXPECT_EQ(row(whole), (Cells{"SP",
                                 "10/04/2012",
                                 "DUPLICATA",
                                 "4567/1",
                                 "JOSÉ & FILHOS",
                                 "05/03/2012",
                                 "RUA A, 1",
                                 "1.234,50",
                                 "01310-100",
                                 "SÃO PAULO",
                                 "SP",
                                 "00.000.000/0001-91",
                                 "110.042.490.114",
                                 "J",
                                 "DOCTO_COBRANCA",
                                 "",
                                 "REFERENTE A",
                                 "0,03",
                                 "2,00",
                                 "0,42",
                                 "7.50",
                                 "REFERENTE A",
                                 "3381",
                                 "201",
                                 "1123",
                                 "1016",
                                 "X9",
                                 "4567"}));
}

TEST(GridRow, AReceivableHasItsControlNumberInsteadOfTheReference) {
    const std::string own = "TIPO_DOCTO='DOCTO_RECEBER' ID_NR_CTL='C1' DC_REF_REC='R'";
    EXPECT_EQ(cell(own, 16), "DOCTO_RECEBER");
    EXPECT_EQ(cell(own, 17), "C1");
    EXPECT_EQ(cell(own, 18), "");
    EXPECT_EQ(cell(own, 23), "R");
    for (const std::string kind :
         {"", "TIPO_DOCTO='docto_receber'", "TIPO_DOCTO=''", "TIPO_DOCTO='X'"}) {
        EXPECT_EQ(cell(kind + " ID_NR_CTL='C1' DC_REF_REC='R'", 17), "") << kind;
        EXPECT_EQ(cell(kind + " ID_NR_CTL='C1' DC_REF_REC='R'", 18), "R") << kind;
    }
}

TEST(GridRow, TaxNumbers) {
    EXPECT_EQ(cell("PES_JUR='0' NR_CGC_CPL='191'", 13), "000.000.001-91");
    EXPECT_EQ(cell("PES_JUR='0' NR_CGC_CPL='191'", 15), "F");
    EXPECT_EQ(cell("PES_JUR='0' NR_CGC_CPL='9912345678901'", 13), "123.456.789-01");
    EXPECT_EQ(cell("PES_JUR='0' NR_CGC_CPL=''", 13), "000.000.000-00");
    EXPECT_EQ(cell("PES_JUR='0'", 13), "");
    EXPECT_EQ(cell("PES_JUR='0'", 15), "F");
    EXPECT_EQ(cell("PES_JUR='00' NR_CGC_CPL='191'", 13), "00.000.000/0001-91");
    EXPECT_EQ(cell("NR_CGC_CPL='9912345678000195'", 13), "12.345.678/0001-95");
    EXPECT_EQ(cell("NR_CGC_CPL='A.1'", 13), "00.000.000/000A-.1");
    EXPECT_EQ(cell("", 15), "J");
}

TEST(GridRow, AbsentIsEmptyAndEmptyAmountsAreZero) {
    Cells nothing(28);
    nothing[15 - 2] = "J";
    EXPECT_EQ(row(""), nothing);
    const std::string empty =
        "VL_PRN_DOC='' TX_JUR_DIA='' PC_MULTA='' JUROS_AO_DIA='' VL_OUT_DSP=''";
    for (const int column : {9, 19, 20, 21}) {
        EXPECT_EQ(cell(empty, column), "0,00") << column;
    }
    EXPECT_EQ(cell(empty, 22), "");
}

TEST(GridRow, ReadsAmountsWithAPointAndNamesAsSpelled) {
    EXPECT_EQ(cell("VL_PRN_DOC='1,5'", 9), "1,00");
    EXPECT_EQ(cell("VL_PRN_DOC='1.005'", 9), "1,01");
    EXPECT_EQ(cell("VL_PRN_DOC='S/N'", 9), "0,00");
    EXPECT_EQ(cell("VL_PRN_DOC='-1234567.891'", 9), "-1.234.567,89");
    EXPECT_EQ(cell("vl_prn_doc='1.5'", 9), "");
}

TEST(SlipRows, RowsAreElementsOfAnyName) {
    XmlDocument answer;
    ASSERT_TRUE(answer.loadXML(
        answers::rowset("<z:row NR_DOC='1'/> <!-- x --> <outra NR_DOC='2'/><z:row NR_DOC='3'/>")));
    std::vector<std::string> numbers;
    for (const GridRow& document : slipRows(answer)) {
        numbers.push_back(document.text(SlipColumn::Number));
    }
    EXPECT_EQ(numbers, (Texts{"1", "2", "3"}));
}

TEST(SlipRows, NoRows) {
    for (const std::string& body :
         {answers::rowset(""), std::string("<xml/>"),
          std::string("<outro xmlns:rs='r'><rs:data><x/></rs:data></outro>")}) {
        XmlDocument answer;
        ASSERT_TRUE(answer.loadXML(body));
        EXPECT_TRUE(slipRows(answer).empty()) << body;
    }
}

class SlipSearchTest : public testing::Test {
protected:
    TestEnvironment seams;
    Sessao session = sessionOf(2161, 9);
};

TEST_F(SlipSearchTest, SendsTheWholeFilter) {
    seams.loader.on("sel_boleto", answers::rowset("<z:row NR_DOC='1'/><z:row NR_DOC='2'/>"));
    const SlipFilter filter{.documents = {.customer = "991",
                                          .branch = 4,
                                          .dueFrom = "01/03/2012",
                                          .dueTo = "31/03/2012",
                                          .issuedFrom = "01/02/2012",
                                          .issuedTo = "28/02/2012"},
                            .portfolio = 57,
                            .includesPortfolio = true};
    const auto rows = searchSlips(seams.environment, session, filter);
    ASSERT_TRUE(rows);
    EXPECT_EQ(rows->size(), 2U);
    EXPECT_FALSE(rows->at(0).ticked);
    EXPECT_EQ(seams.loader.queries(),
              (Texts{"comando=sel_boleto&ID_EMP_TARN=2161&ID_PES_CLI=991&ID_ETB_TARN=4"
                     "&ID_CRT_COB=57&DT_VNC_DE=01/03/2012&DT_VNC_ATE=31/03/2012"
                     "&DT_EMS_DE=01/02/2012&DT_EMS_ATE=28/02/2012&ID_PES_USU=77"
                     "&IC_INC_CAR=S&ServerName=SRV1"}));
    EXPECT_EQ(seams.boxes.shown, Boxes{});
}

TEST_F(SlipSearchTest, EmptyValuesStayEmpty) {
    seams.loader.on("sel_boleto", answers::rowset(""));
    const auto rows = searchSlips(seams.environment, session, {});
    ASSERT_TRUE(rows);
    EXPECT_TRUE(rows->empty());
    EXPECT_EQ(seams.loader.queries(),
              (Texts{"comando=sel_boleto&ID_EMP_TARN=2161&ID_PES_CLI=&ID_ETB_TARN="
                     "&ID_CRT_COB=&DT_VNC_DE=&DT_VNC_ATE=&DT_EMS_DE=&DT_EMS_ATE="
                     "&ID_PES_USU=77&IC_INC_CAR=N&ServerName=SRV1"}));
}

TEST_F(SlipSearchTest, AFailedSearchIsToldWithOneBlank) {
    seams.loader.failOn("sel_boleto");
    EXPECT_FALSE(searchSlips(seams.environment, session, {}));
    EXPECT_EQ(seams.boxes.shown, (Boxes{noInternet9}));
}

TEST_F(SlipSearchTest, Portfolios) {
    seams.loader.on("sel_carteira",
                    answers::rowset("<z:row DC_CRT_COB='Carteira 57' ID_CRT_COB='5'/>"
                                    "<z:row ID_CRT_COB='x'/><z:row DC_CRT_COB=' B '/>"));
    EXPECT_EQ(portfoliosForFilter(seams.environment, session),
              (std::vector<ListItem>{ListItem{"--------", 0}, ListItem{"Carteira 57", 5},
                                     ListItem{"", 0}, ListItem{" B ", 0}}));
    EXPECT_EQ(seams.loader.queries(),
              (Texts{"comando=sel_carteira&ID_EMP_TARN=2161&ServerName=SRV1"}));
}

TEST_F(SlipSearchTest, FailedPortfoliosLeaveTheFirstItemAndAreToldWithFourBlanks) {
    seams.loader.failOn("sel_carteira");
    EXPECT_EQ(portfoliosForFilter(seams.environment, session),
              (std::vector<ListItem>{ListItem{"--------", 0}}));
    EXPECT_EQ(seams.boxes.shown, (Boxes{noInternet9Wide}));
}

std::string textOf(const std::optional<SlipRefusal>& refusal) {
    return refusal ? std::string(refusal->text) : std::string();
}

TEST(SearchRefusal, AsksForThreeThingsInOrder) {
    EXPECT_EQ(textOf(searchRefusal({}, 0)), "Data Emissão De é Obrigatório.     ");
    EXPECT_EQ(textOf(searchRefusal({.issuedFrom = "x"}, 0)),
              "Data de Vencimento Obrigatória.     ");
    EXPECT_EQ(textOf(searchRefusal({.dueTo = "x", .issuedFrom = "x"}, 0)),
              "Carteira Cobrança é um campo obrigatório.     ");
    EXPECT_EQ(textOf(searchRefusal({.dueTo = "x", .issuedFrom = "x"}, -1)),
              "Carteira Cobrança é um campo obrigatório.     ")
        << "a list without items";
    EXPECT_EQ(textOf(searchRefusal({.dueTo = "x", .issuedFrom = "x"}, 1)), "");
}

TEST(PrintRefusal, AsksForTwo) {
    EXPECT_EQ(textOf(printRefusal(0, "")), "Carteira Cobrança é um campo obrigatório!     ");
    EXPECT_EQ(textOf(printRefusal(-1, "1")), "Carteira Cobrança é um campo obrigatório!     ");
    EXPECT_EQ(textOf(printRefusal(1, "")), "Nr. Boleto Bancário é um campo obrigatório!     ");
    EXPECT_EQ(textOf(printRefusal(1, "0")), "");
}

}  // namespace
}  // namespace tarn::test
