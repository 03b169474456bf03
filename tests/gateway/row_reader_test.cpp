#include "gateway/row_reader.h"

#include <array>

#include "gateway/pega_valor.h"
#include "tests/gateway/rows_fixture.h"

namespace tarn::test {
namespace {

class RowReaderTest : public RowsTest {
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
    for (int i = 0; i < 999; ++i) {
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

// More names than are kept at hand, over and over: what one read leaves behind must not
// show in another.
TEST_F(RowReaderTest, NamesThatPushOneAnotherOut) {
    std::string lines;
    for (int row = 0; row < 20; ++row) {
        lines += "<I ";
        for (int i = 0; i < 400; ++i) {
            lines += "N" + std::to_string((i + row) % 400) + "='-' ";
        }
        lines += row % 2 == 0 ? "QTDE='1.5'/>" : "qtde='1' VL='2.5'/>";
    }
    const XmlNode& node = load(lines);
    for (std::size_t row = 0; row < 20; ++row) {
        reader_.read(node, row);
        if (row % 2 == 0) {
            EXPECT_EQ(reader_.text(1), "1.5") << row;
            EXPECT_FALSE(reader_.present(3)) << row;
        } else {
            expectObjectError([&] { (void)reader_.text(1); });
            EXPECT_EQ(reader_.number(3), "2,5") << row;
        }
    }
}

TEST(RowNames, AreFoundInAnyCaseOfLetters) {
    constexpr std::array<std::string_view, 3> all{"Ent_Sai", "QTDE", ""};
    const RowNames names(all);
    EXPECT_EQ(names.count(), 3U);
    EXPECT_EQ(names.find("ENT_SAI"), 0);
    EXPECT_EQ(names.find("qtde"), 1);
    EXPECT_EQ(names.find("QTDE "), -1);
    EXPECT_EQ(names.find(""), 2);
    EXPECT_EQ(names[0].upperCase, "ENT_SAI");
}

}  // namespace
}  // namespace tarn::test
