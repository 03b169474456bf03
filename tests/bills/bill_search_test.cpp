// What the search asks for and the cells that its rows become.
#include "bills/bill_search.h"

#include <gtest/gtest.h>

#include "gateway/xml_document.h"
#include "tests/support/answers.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {

std::vector<GridRow> rowsOf(const std::string& lines) {
    XmlDocument answer;
    EXPECT_TRUE(answer.loadXML(answers::rowset(lines)));
    return billRows(answer);
}

TEST(BillRows, EachColumnTakesItsAttribute) {
    const auto lines = rowsOf(
        "<z:row SG_FIL='c2' DT_VNC_DOC_FMA='c3' DT_EMS_DOC='c4' NR_DOC='c5' NM_CLI_ETB='c6' "
        "DC_LG_CPL='c7' VL_PRN_DOC='1234567.895' CD_CEP='c9' NM_MUN='c10' SG_UF='c11' "
        "NR_CGC_CPL='1234567000189' CD_ICR_EST='c13' PES_JUR='1' TIPO_DOCTO='DOCTO_COBRANCA' "
        "ID_TIP_DOC='c16' ID_NR_CTL='c17' DC_REF_REC='c18' NR_DOC_NF='c19' EG_COB='c20' "
        "MUN_COB='c21' ES_COB='c22' CD_CEP_COB='c23'/>");
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_FALSE(lines[0].ticked);
    EXPECT_EQ(lines[0].cells, (Texts{"",
                                     "c2",
                                     "c3",
                                     "c4",
                                     "c5",
                                     "c6",
                                     "c7",
                                     "1.234.567,90",
                                     "c9",
                                     "c10",
                                     "c11",
                                     "01.234.567/0001-89",
                                     "c13",
                                     "J",
                                     "DOCTO_COBRANCA",
                                     "c16",
                                     "",
                                     "c18",
                                     "c19",
                                     "c20",
                                     "c21",
                                     "c22",
                                     "c23"}));
}

TEST(BillRows, AReceivableHasItsControlNumberInsteadOfTheReference) {
    const auto lines = rowsOf(
        "<z:row TIPO_DOCTO='DOCTO_RECEBER' ID_NR_CTL='55' DC_REF_REC='x'/>"
        "<z:row ID_NR_CTL='55' DC_REF_REC='x'/>"
        "<z:row TIPO_DOCTO='docto_receber' ID_NR_CTL='55' DC_REF_REC='x'/>");
    EXPECT_EQ(lines[0].text(BillColumn::ControlNumber), "55");
    EXPECT_EQ(lines[0].text(BillColumn::Reference), "");
    for (std::size_t i : {1U, 2U}) {
        EXPECT_EQ(lines[i].text(BillColumn::ControlNumber), "");
        EXPECT_EQ(lines[i].text(BillColumn::Reference), "x");
    }
}

TEST(BillRows, TaxNumbersByTheKindOfPerson) {
    const auto lines = rowsOf(
        "<z:row PES_JUR='0' NR_CGC_CPL='7654321'/>"
        "<z:row PES_JUR='0' NR_CGC_CPL='9912345678901'/>"
        "<z:row PES_JUR='00' NR_CGC_CPL='12345678901'/>"
        "<z:row NR_CGC_CPL=''/>"
        "<z:row PES_JUR='0'/>"
        "<z:row NR_CGC_CPL='ISENTO-é'/>");
    const auto pair = [&](std::size_t i) {
        return lines[i].text(BillColumn::CpfCnpj) + " " + lines[i].text(BillColumn::PersonKind);
    };
    EXPECT_EQ(pair(0), "000.076.543-21 F");
    EXPECT_EQ(pair(1), "123.456.789-01 F");
    EXPECT_EQ(pair(2), "00.012.345/6789-01 J");
    EXPECT_EQ(pair(3), "00.000.000/0000-00 J");
    EXPECT_EQ(pair(4), " F") << "absent";
    EXPECT_EQ(pair(5), "00.000.0IS/ENTO--é J");
}

TEST(BillRows, AmountsAreReadWithAPoint) {
    const auto lines = rowsOf(
        "<z:row VL_PRN_DOC='0.5'/><z:row VL_PRN_DOC=''/><z:row/><z:row VL_PRN_DOC='1.234,5'/>"
        "<z:row VL_PRN_DOC='-1234.005'/><z:row VL_PRN_DOC='A VISTA'/><z:row vl_prn_doc='7'/>");
    std::vector<std::string> values;
    for (const GridRow& line : lines) {
        values.push_back(line.text(BillColumn::Value));
    }
    EXPECT_EQ(values, (Texts{"0,50", "0,00", "", "1,23", "-1.234,01", "0,00", ""}));
}

TEST(BillRows, WithoutRowsThereAreNone) {
    EXPECT_TRUE(rowsOf("").empty());
    XmlDocument noData;
    ASSERT_TRUE(noData.loadXML("<?xml version='1.0'?><xml/>"));
    EXPECT_TRUE(billRows(noData).empty());
    EXPECT_TRUE(billRows(XmlDocument()).empty());
}

TEST(DocumentKinds, AreFixed) {
    EXPECT_EQ(documentKinds(),
              (std::vector<ListItem>{ListItem{"-------------", 0}, ListItem{"DUPLICATA", 1},
                                     ListItem{"RECIBO", 12}}));
}

}  // namespace
}  // namespace tarn::test
