#include "gateway/pega_valor.h"

#include "tests/gateway/rows_fixture.h"

namespace tarn::test {
namespace {

using PegaValorTest = RowsTest;

TEST_F(PegaValorTest, AbsentGivesTheDefaultAsPassed) {
    const XmlNode& node = load("<L A='1'/>");
    EXPECT_EQ(PegaValor(node, 0, "B"), "");
    EXPECT_EQ(PegaValor(node, 0, "B", "0"), "0");
    EXPECT_EQ(PegaValor(node, 0, "B", "x"), "x");
    EXPECT_EQ(PegaValor(node, 0, "B", 0), "0");
    EXPECT_EQ(PegaValor(node, 0, "B", 7), "7");
}

TEST_F(PegaValorTest, ANumericReadTurnsEveryPointIntoAComma) {
    const XmlNode& node = load("<L A='1.234.5' B='12' C=''/>");
    EXPECT_EQ(PegaValor(node, 0, "A", 0), "1,234,5");
    EXPECT_EQ(PegaValor(node, 0, "B", 0), "12");
    EXPECT_EQ(PegaValor(node, 0, "C", 0), "");
}

TEST_F(PegaValorTest, ATextReadLeavesTheTextAsItIs) {
    const XmlNode& node = load("<L A='12.50' B='  x  '/>");
    EXPECT_EQ(PegaValor(node, 0, "A"), "12.50");
    EXPECT_EQ(PegaValor(node, 0, "A", "0"), "12.50");
    EXPECT_EQ(PegaValor(node, 0, "A", 1), "12.50") << "only the number 0 makes a read numeric";
    EXPECT_EQ(PegaValor(node, 0, "B"), "  x  ");
}

TEST_F(PegaValorTest, PresenceIgnoresCaseAndTheLookupDoesNot) {
    const XmlNode& node = load("<L NCOMPANYCODE='2161' Ent_Sai='E' usercode='u'/>");
    EXPECT_EQ(PegaValor(node, 0, "ncompanycode", 0), "2161");
    expectObjectError([&] { PegaValor(node, 0, "ncompanycode"); });
    EXPECT_EQ(PegaValor(node, 0, "Ent_Sai"), "E");
    expectObjectError([&] { PegaValor(node, 0, "Ent_Sai", 0); });
    expectObjectError([&] { PegaValor(node, 0, "ENT_SAI"); });
    expectObjectError([&] { PegaValor(node, 0, "UserCode", 0); });
}

TEST_F(PegaValorTest, AnotherSpellingIsReportedByBothNames) {
    const XmlNode& node = load("<L Nm_Fil='x'/>");
    try {
        PegaValor(node, 0, "NM_FIL");
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.description(),
                  "Falta um dado na resposta do servidor: o campo NM_FIL vem com o nome Nm_Fil");
    }
}

TEST_F(PegaValorTest, TheLookupTakesItsOwnSpellingWhereverItStands) {
    const XmlNode& node = load("<L razao='lower' RAZAO='UPPER'/>");
    EXPECT_EQ(PegaValor(node, 0, "RAZAO"), "UPPER");
    EXPECT_EQ(PegaValor(node, 0, "razao"), "lower");
    EXPECT_EQ(PegaValor(node, 0, "razao", 0), "UPPER");
}

TEST_F(PegaValorTest, APrefixedAttributeIsPresentAndFailsOnTheLookup) {
    const XmlNode& node =
        load("<L xmlns:p='u' p:A='1'/><L xmlns:p='u' p:A='1' A='2'/><L q:A='1'/>");
    expectObjectError([&] { PegaValor(node, 0, "A"); });
    expectObjectError([&] { PegaValor(node, 0, "A", 0); });
    EXPECT_EQ(PegaValor(node, 1, "A"), "2");
    expectObjectError([&] { PegaValor(node, 2, "A"); });
}

TEST_F(PegaValorTest, ARowThatDoesNotExist) {
    const XmlNode& node = load("<L A='1'/>");
    expectObjectError([&] { PegaValor(node, 1, "A"); });
    expectObjectError([&] { PegaValor(node, 1, "A", 0); });
    expectObjectError([&] { PegaValor(XmlNode(), 0, "A"); });
}

TEST_F(PegaValorTest, RowsAreCountedByElements) {
    const XmlNode& node = load("\n <!-- c --> <L A='1'/>\n text <L A='2'/>");
    EXPECT_EQ(PegaValor(node, 0, "A"), "1");
    EXPECT_EQ(PegaValor(node, 1, "A"), "2");
}

}  // namespace
}  // namespace tarn::test
