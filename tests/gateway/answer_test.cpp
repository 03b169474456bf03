#include "gateway/answer.h"

#include <gtest/gtest.h>

#include "tests/gateway/rows_fixture.h"
#include "tests/support/answers.h"
#include "tests/support/test_environment.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {

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

TEST(StatusIfAny, IsNothingWhereItCannotBeRead) {
    XmlDocument document;
    EXPECT_EQ(statusIfAny(document), std::nullopt);
    ASSERT_TRUE(document.loadXML("<?xml version='1.0'?><R x='OK'/>"));
    EXPECT_EQ(statusIfAny(document), std::nullopt);
    ASSERT_TRUE(document.loadXML("<?xml version='1.0'?><R x='1' y='OK'/>"));
    EXPECT_EQ(statusIfAny(document), "OK");
}

TEST(AnswerAccepted, OnlyTheExactOK) {
    TestEnvironment seams;
    XmlDocument document;
    ASSERT_TRUE(document.loadXML(answers::status("OK")));
    EXPECT_TRUE(answerAccepted(seams.environment, document, "vazia"));
    EXPECT_EQ(seams.boxes.shown, Boxes{});
    ASSERT_TRUE(document.loadXML(answers::status("ok")));
    EXPECT_FALSE(answerAccepted(seams.environment, document, "vazia"));
    EXPECT_FALSE(answerAccepted(seams.environment, XmlDocument(), "vazia"));
    EXPECT_EQ(seams.boxes.shown,
              (Boxes{Box{"ok", BoxIcon::Exclamation}, Box{"vazia", BoxIcon::Exclamation}}));
}

TEST(RequestAnswer, AsksTheServersOnePage) {
    TestEnvironment seams;
    seams.loader.on("comando=x", answers::status("OK"));
    XmlDocument document;
    EXPECT_TRUE(requestAnswer(seams.environment, "comando=x&A=1", document, "falhou"));
    EXPECT_EQ(statusOf(document), "OK");
    EXPECT_EQ(seams.loader.queries(), (Texts{"comando=x&A=1"}));
    seams.loader.failOn("comando=y");
    EXPECT_FALSE(requestAnswer(seams.environment, "comando=y", document, "falhou"));
    EXPECT_TRUE(document.empty());
    EXPECT_EQ(seams.boxes.shown,
              (Boxes{Box{"falhou", BoxIcon::Critical, "TarnEMISSAO - ERRO INESPERADO"}}));
}

TEST(RowsOf, AreTheElementsOfTheRowset) {
    XmlDocument document;
    ASSERT_TRUE(document.loadXML(answers::rowset("<z:row A='1'/> <!-- c --> x <outra A='2'/>")));
    std::vector<std::string> all;
    for (const XmlNode row : rowsOf(document)) {
        all.emplace_back(row.attributes().textOf("A"));
    }
    EXPECT_EQ(all, (Texts{"1", "2"}));
    EXPECT_EQ(rowsetOf(document).childCount(), 2U);
    EXPECT_EQ(rowsetOf(document).child(0).attributes().textOf("B"), "") << "absent";
    EXPECT_EQ(rowsetOf(document).child(0).attributes().textOf("a"), "") << "another name";
}

TEST(RowsOf, AnyOtherAnswerHasNone) {
    EXPECT_EQ(rowsOf(XmlDocument()).length(), 0U);
    EXPECT_FALSE(rowsetOf(XmlDocument()));
    for (const std::string& answer :
         {answers::status("OK"), std::string("<xml/>"),
          std::string("<outro xmlns:rs='r'><rs:data><x/></rs:data></outro>"),
          std::string("<xml xmlns:s='r'><s:data><x/></s:data></xml>"), answers::rowset("")}) {
        XmlDocument document;
        ASSERT_TRUE(document.loadXML(answer));
        EXPECT_EQ(rowsOf(document).length(), 0U) << answer;
    }
}

}  // namespace
}  // namespace tarn::test
