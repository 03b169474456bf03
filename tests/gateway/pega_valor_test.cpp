#include "gateway/pega_valor.h"

#include <gtest/gtest.h>

#include <array>

#include "runtime/runtime_error.h"

namespace tarn::test {
namespace {

class PegaValorTest : public testing::Test {
protected:
    const XmlNode& load(std::string_view lines) {
        EXPECT_TRUE(document_.loadXML("<?xml version='1.0'?><PRINCIPAL c='' s='OK'>" +
                                      std::string(lines) + "</PRINCIPAL>"));
        principal_ = document_.selectSingleNode("PRINCIPAL");
        return principal_;
    }

    XmlDocument document_;
    XmlNode principal_;
};

void expectObjectError(const auto& action) {
    try {
        action();
        ADD_FAILURE() << "no error";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), RuntimeErrorCode::ObjectVariable);
    }
}

TEST_F(PegaValorTest, AbsentGivesTheDefaultAsPassed) {
    const XmlNode& node = load("<L A='1'/>");
    EXPECT_EQ(PegaValor(node, 0, "B", 0.0), AttributeValue(0.0));
    EXPECT_EQ(PegaValor(node, 0, "B", 7.5), AttributeValue(7.5));
    EXPECT_EQ(PegaValor(node, 0, "B", std::string()), AttributeValue(std::string()));
    EXPECT_EQ(PegaValor(node, 0, "B", std::string("0")), AttributeValue(std::string("0")));
    EXPECT_EQ(textAttribute(node, 0, "B"), "");
    EXPECT_EQ(numberAttribute(node, 0, "B"), "0");
}

TEST_F(PegaValorTest, ANumericReadTurnsEveryPointIntoAComma) {
    const XmlNode& node = load("<L A='1.234.5' B='12' C=''/>");
    EXPECT_EQ(PegaValor(node, 0, "A", 0.0), AttributeValue(std::string("1,234,5")));
    EXPECT_EQ(PegaValor(node, 0, "B", 0.0), AttributeValue(std::string("12")));
    EXPECT_EQ(PegaValor(node, 0, "C", 0.0), AttributeValue(std::string()));
    EXPECT_EQ(numberAttribute(node, 0, "A"), "1,234,5");
}

TEST_F(PegaValorTest, ATextReadLeavesTheTextAsItIs) {
    const XmlNode& node = load("<L A='12.50' B='  x  '/>");
    EXPECT_EQ(PegaValor(node, 0, "A", std::string()), AttributeValue(std::string("12.50")));
    EXPECT_EQ(PegaValor(node, 0, "A", std::string("0")), AttributeValue(std::string("12.50")));
    EXPECT_EQ(PegaValor(node, 0, "A", 1.0), AttributeValue(std::string("12.50")));
    EXPECT_EQ(textAttribute(node, 0, "B"), "  x  ");
}

TEST_F(PegaValorTest, PresenceIgnoresCaseAndTheLookupDoesNot) {
    const XmlNode& node = load("<L NCOMPANYCODE='2161' Ent_Sai='E' usercode='u'/>");
    EXPECT_EQ(numberAttribute(node, 0, "ncompanycode"), "2161");
    expectObjectError([&] { textAttribute(node, 0, "ncompanycode"); });
    EXPECT_EQ(textAttribute(node, 0, "Ent_Sai"), "E");
    expectObjectError([&] { numberAttribute(node, 0, "Ent_Sai"); });
    expectObjectError([&] { textAttribute(node, 0, "ENT_SAI"); });
    expectObjectError([&] { numberAttribute(node, 0, "UserCode"); });
    expectObjectError([&] { PegaValor(node, 0, "UserCode", std::string()); });
}

TEST_F(PegaValorTest, TheLookupTakesItsOwnSpellingWhereverItStands) {
    const XmlNode& node = load("<L razao='lower' RAZAO='UPPER'/>");
    EXPECT_EQ(textAttribute(node, 0, "RAZAO"), "UPPER");
    EXPECT_EQ(textAttribute(node, 0, "razao"), "lower");
    EXPECT_EQ(numberAttribute(node, 0, "razao"), "UPPER");
}

TEST_F(PegaValorTest, APrefixedAttributeIsPresentAndFailsOnTheLookup) {
    const XmlNode& node =
        load("<L xmlns:p='u' p:A='1'/><L xmlns:p='u' p:A='1' A='2'/><L q:A='1'/>");
    expectObjectError([&] { textAttribute(node, 0, "A"); });
    expectObjectError([&] { numberAttribute(node, 0, "A"); });
    EXPECT_EQ(textAttribute(node, 1, "A"), "2");
    expectObjectError([&] { textAttribute(node, 2, "A"); });
}

TEST_F(PegaValorTest, ARowThatDoesNotExist) {
    const XmlNode& node = load("<L A='1'/>");
    expectObjectError([&] { textAttribute(node, 1, "A"); });
    expectObjectError([&] { PegaValor(node, 1, "A", 0.0); });
    expectObjectError([&] { textAttribute(XmlNode(), 0, "A"); });
}

TEST_F(PegaValorTest, RowsAreCountedByElements) {
    const XmlNode& node = load("\n <!-- c --> <L A='1'/>\n text <L A='2'/>");
    EXPECT_EQ(textAttribute(node, 0, "A"), "1");
    EXPECT_EQ(textAttribute(node, 1, "A"), "2");
}

TEST(StatusOf, TheSecondAttributeOfTheSecondChild) {
    XmlDocument document;
    ASSERT_TRUE(document.loadXML("<?xml version='1.0'?><R x='1' y='ok' z='3'/>"));
    EXPECT_EQ(statusOf(document), "ok");
    ASSERT_TRUE(
        document.loadXML("<?xml version='1.0'?><R x='1' y='&lt;b&gt;n&#227;o&lt;/b&gt;'/>"));
    EXPECT_EQ(statusOf(document), "<b>não</b>");
}

TEST(StatusOf, CannotBeRead) {
    XmlDocument document;
    expectObjectError([&] { statusOf(document); });
    ASSERT_TRUE(document.loadXML("<R x='1' y='OK'/>"));
    expectObjectError([&] { statusOf(document); });
    ASSERT_TRUE(document.loadXML("<?xml version='1.0'?><R x='OK'/>"));
    expectObjectError([&] { statusOf(document); });
    ASSERT_TRUE(document.loadXML("<?xml version='1.0'?><R/>"));
    expectObjectError([&] { statusOf(document); });
}

class RowReaderTest : public PegaValorTest {
protected:
    static constexpr std::array<std::string_view, 4> names{"CD_PRO", "QTDE", "Ent_Sai", "VL"};
    RowReader reader_{names};
};

TEST_F(RowReaderTest, ReadsAsPegaValorDoes) {
    const XmlNode& node = load(
        "<I CD_PRO='A.1' QTDE='1.5' outro='x' Ent_Sai='S'/>"
        "<I QTDE='' VL='1.2.3'/>"
        "<I ent_sai='s' qtde='1'/>"
        "<I xmlns:p='u' p:VL='1'/>"
        "<I vl='lower' VL='9.5'/>");
    reader_.read(node, 0);
    EXPECT_EQ(reader_.text(0), "A.1");
    EXPECT_EQ(reader_.number(0), "A,1");
    EXPECT_EQ(reader_.text(1), "1.5");
    EXPECT_EQ(reader_.number(1), "1,5");
    EXPECT_EQ(reader_.text(2), "S");
    expectObjectError([&] { (void)reader_.number(2); });
    EXPECT_FALSE(reader_.present(3));
    EXPECT_EQ(reader_.text(3), "");
    EXPECT_EQ(reader_.number(3), "0");
    EXPECT_EQ(reader_.number(3, "5"), "5");
    reader_.read(node, 1);
    EXPECT_EQ(reader_.text(0), "");
    EXPECT_TRUE(reader_.present(1));
    EXPECT_EQ(reader_.number(1, "5"), "");
    EXPECT_EQ(reader_.number(3), "1,2,3");
    reader_.read(node, 2);
    expectObjectError([&] { (void)reader_.text(2); });
    expectObjectError([&] { (void)reader_.number(1); });
    reader_.read(node, 3);
    EXPECT_TRUE(reader_.present(3));
    expectObjectError([&] { (void)reader_.text(3); });
    reader_.read(node, 4);
    EXPECT_EQ(reader_.number(3), "9,5");
    EXPECT_THROW(reader_.read(node, 5), RuntimeError);
    EXPECT_THROW(reader_.read(XmlNode()), RuntimeError);
}

TEST_F(RowReaderTest, FollowsFromDocumentToDocument) {
    for (int i = 0; i < 50; ++i) {
        const std::string extra = i % 2 == 0 ? "a" + std::to_string(i) + "='0' " : "";
        const XmlNode& node = load("<I " + extra + "QTDE='" + std::to_string(i) + "' VL='x'/>");
        reader_.read(node, 0);
        EXPECT_EQ(reader_.text(1), std::to_string(i));
        EXPECT_EQ(reader_.text(3), "x");
        EXPECT_EQ(reader_.text(0), "");
    }
}

TEST_F(RowReaderTest, RowsNeedNotKeepAnOrder) {
    constexpr std::array<std::string_view, 6> parts{"CD_PRO='c'", "x='1'",  "QTDE='q'",
                                                    "y='2'",      "VL='v'", "z='3'"};
    std::string lines;
    for (std::size_t i = 0; i < 64; ++i) {  // turned, and with every set of them
        lines += "<I";
        for (std::size_t j = 0; j < parts.size(); ++j) {
            const std::size_t which = (i + j) % parts.size();
            lines += (i >> which & 1U) != 0 ? " " + std::string(parts.at(which)) : "";
        }
        lines += "/>";
    }
    const XmlNode& node = load(lines);
    for (std::size_t i = 0; i < 64; ++i) {
        reader_.read(node, i);
        EXPECT_EQ(reader_.text(0), (i & 1U) != 0 ? "c" : "") << i;
        EXPECT_EQ(reader_.text(1), (i & 4U) != 0 ? "q" : "") << i;
        EXPECT_EQ(reader_.text(3), (i & 16U) != 0 ? "v" : "") << i;
    }
}

TEST_F(RowReaderTest, ManyDifferentNames) {
    std::string line = "<I ";
    for (int i = 0; i < 1000; ++i) {
        line += "N" + std::to_string(i) + "='" + std::to_string(i) + "' ";
    }
    const XmlNode& node = load(line + "VL='fim'/>");
    reader_.read(node, 0);
    EXPECT_EQ(reader_.text(3), "fim");
    EXPECT_FALSE(reader_.present(0));
}

TEST_F(RowReaderTest, UndeclaredPrefixesCountAsPrefixes) {
    const XmlNode& node = load("<I q:VL='1'/>");
    reader_.read(node, 0);
    EXPECT_TRUE(reader_.present(3));
    expectObjectError([&] { (void)reader_.text(3); });
}

}  // namespace
}  // namespace tarn::test
