#include "practice/commands/answer_writer.h"

#include <gtest/gtest.h>

#include "gateway/xml_document.h"

namespace tarn::practice::test {
namespace {

Element oneValue(std::string value) {
    Element root{"R", {}, {}};
    root.set("A", "1").set("B", std::move(value)).set("C", std::nullopt);
    return root;
}

TEST(AnswerWriter, DeclaresTheEncodingAndKeepsTheOrderOfAttributes) {
    EXPECT_EQ(writeAnswer(oneValue("x"), Encoding::Windows1252),
              "<?xml version=\"1.0\" encoding=\"windows-1252\"?>\n<R A=\"1\" B=\"x\"/>\n");
    EXPECT_EQ(writeAnswer(oneValue("x"), Encoding::Iso8859),
              "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\n<R A=\"1\" B=\"x\"/>\n");
    EXPECT_EQ(writeAnswer(oneValue("x"), Encoding::Utf8),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<R A=\"1\" B=\"x\"/>\n");
}

TEST(AnswerWriter, DeclaresTheSameInAProgramThatHasReadAnAnswer) {
    XmlDocument document;
    ASSERT_TRUE(document.loadXML("<?xml version='1.0' encoding='windows-1252'?><R/>"));
    EXPECT_EQ(writeAnswer(oneValue("x"), Encoding::Windows1252),
              "<?xml version=\"1.0\" encoding=\"windows-1252\"?>\n<R A=\"1\" B=\"x\"/>\n");
}

TEST(AnswerWriter, WritesOneByteACharacterInThe8BitPages) {
    EXPECT_NE(writeAnswer(oneValue("ação €"), Encoding::Windows1252).find("a\xE7\xE3o \x80\""),
              std::string::npos);
    EXPECT_NE(writeAnswer(oneValue("ação €"), Encoding::Iso8859).find("a\xE7\xE3o &#8364;\""),
              std::string::npos);
    EXPECT_NE(writeAnswer(oneValue("ação €"), Encoding::Utf8).find("ação €\""), std::string::npos);
}

class EveryEncoding : public testing::TestWithParam<Encoding> {};

TEST_P(EveryEncoding, ComesBackAsItWas) {
    const std::string value = "<a href=\"x\">'&amp;' ç Ñ € “–” Ω\nlinha\r\n\tfim";
    XmlDocument document;
    ASSERT_TRUE(document.loadXML(writeAnswer(oneValue(value), GetParam())));
    EXPECT_EQ(document.documentElement().attributes().item(1).text(), value);
}

TEST_P(EveryEncoding, TurnsForbiddenControlsIntoBlanks) {
    XmlDocument document;
    ASSERT_TRUE(document.loadXML(writeAnswer(oneValue("a\x1B@\x01z"), GetParam())));
    EXPECT_EQ(document.documentElement().attributes().item(1).text(), "a @ z");
}

INSTANTIATE_TEST_SUITE_P(AnswerWriter, EveryEncoding,
                         testing::Values(Encoding::Windows1252, Encoding::Iso8859, Encoding::Utf8));

TEST(AnswerWriter, KnowsItsEncodingsByName) {
    EXPECT_EQ(encodingByName("iso-8859-1"), Encoding::Iso8859);
    EXPECT_EQ(encodingByName("utf-8"), Encoding::Utf8);
    EXPECT_EQ(encodingByName("windows-1252"), Encoding::Windows1252);
    EXPECT_EQ(encodingByName("latin1"), std::nullopt);
}

}  // namespace
}  // namespace tarn::practice::test
