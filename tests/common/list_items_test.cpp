#include "common/list_items.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "gateway/sessao.h"
#include "gateway/xml_document.h"
#include "tests/support/answers.h"
#include "tests/support/test_environment.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {

TEST(ItemData, IsThe32BitNumberOfItsTextOrZero) {
    EXPECT_EQ(itemData("12"), 12);
    EXPECT_EQ(itemData(" 12 "), 12);
    EXPECT_EQ(itemData("-7"), -7);
    EXPECT_EQ(itemData("2147483647"), 2147483647);
    EXPECT_EQ(itemData("2147483648"), 0);
    EXPECT_EQ(itemNumber("0"), 0);
    EXPECT_EQ(itemNumber("2147483648"), std::nullopt);
    EXPECT_EQ(itemNumber(""), std::nullopt);
    EXPECT_EQ(itemNumber("x"), std::nullopt);
    EXPECT_EQ(itemData(""), 0);
    EXPECT_EQ(itemData("A1"), 0);
}

TEST(ListItemsOf, OneForEachRowInItsOrder) {
    XmlDocument answer;
    ASSERT_TRUE(
        answer.loadXML(answers::rowset("<z:row N='B' I='2'/><outra N='A' I='1'/>"
                                       "<z:row I='3'/><z:row N='C'/><z:row n='D' i='4'/>"
                                       "<z:row N='E' I='x'/>")));
    EXPECT_EQ(listItemsOf(answer, "N", "I"),
              (std::vector<ListItem>{ListItem{"B", 2}, ListItem{"A", 1}, ListItem{"", 3},
                                     ListItem{"C", 0}, ListItem{"", 0}, ListItem{"E", 0}}));
    EXPECT_THAT(listItemsOf(answer, "N", {}), testing::Contains(ListItem{"B", 0}));
    EXPECT_THAT(listItemsOf(XmlDocument(), "N", "I"), testing::IsEmpty());
}

TEST(BranchesForFilter, AllStandsFirstAndAloneAfterAFailure) {
    TestEnvironment seams;
    Sessao session;
    session.NCOMPANYCODE = 7;
    session.UserCode = "u";
    session.SERVERNAME = "S";
    seams.loader.on("sel_filiais", answers::rowset("<z:row SG_FIL='SP' ID_ETB_TARN='9'/>"));
    EXPECT_EQ(branchesForFilter(seams.environment, session),
              (std::vector<ListItem>{ListItem{"<-TODAS->", 0}, ListItem{"SP", 9}}));
    EXPECT_EQ(seams.loader.queries(),
              (Texts{"comando=sel_filiais&ID_EMP_TARN=7&UserCode=u&ServerName=S"}));
    EXPECT_EQ(seams.boxes.shown, Boxes{});
    TestEnvironment without;
    EXPECT_EQ(branchesForFilter(without.environment, session),
              (std::vector<ListItem>{ListItem{"<-TODAS->", 0}}));
    EXPECT_EQ(without.boxes.shown.size(), 1U);
}

}  // namespace
}  // namespace tarn::test
