#include "practice/commands/query_text.h"

#include <gtest/gtest.h>

namespace tarn::practice::test {
namespace {

TEST(QueryText, TakesNamesWithoutRegardToCase) {
    for (const char* key : {"comando", "COMANDO", "Comando"}) {
        const Query query(std::string(key) + "=LOGIN&EMPRESA=1361");
        EXPECT_EQ(query.command(), "LOGIN");
        EXPECT_EQ(query.value("empresa"), "1361");
    }
}

TEST(QueryText, DecodesValuesAsWindows1252) {
    const Query query("comando=X&A=Jos%E9%20a%E7%E3o%0D%0A%80&B=1+1%2B1&C=50%&D=%zz%4");
    EXPECT_EQ(query.value("A"), "José ação\r\n€");
    EXPECT_EQ(query.value("B"), "1+1+1");
    EXPECT_EQ(query.value("C"), "50%");
    EXPECT_EQ(query.value("D"), "%zz%4");
}

TEST(QueryText, TakesAZeroByteForABlank) {
    EXPECT_EQ(Query("A=x%00y").value("A"), "x y");
}

TEST(QueryText, CutsAtTheAmpersandBeforeDecoding) {
    const Query query("comando=X&NOME=A%26B&OUTRO=a=b&VAZIO=&&SOLTO");
    EXPECT_EQ(query.value("NOME"), "A&B");
    EXPECT_EQ(query.value("OUTRO"), "a=b");
    EXPECT_TRUE(query.has("VAZIO"));
    EXPECT_EQ(query.value("VAZIO"), "");
    EXPECT_TRUE(query.has("solto"));
    EXPECT_FALSE(query.has("falta"));
    EXPECT_EQ(query.value("falta"), "");
}

TEST(QueryText, OfANameGivenTwiceTheFirstHolds) {
    EXPECT_EQ(Query("a=1&A=2").value("A"), "1");
}

TEST(QueryText, UndoesTheBars) {
    EXPECT_EQ(undoBars("10|| A|B"), "10% A&B");
    EXPECT_EQ(undoBars("|||"), "%&");
    EXPECT_EQ(undoBars("sem nada"), "sem nada");
}

TEST(QueryText, ReadsWholeNumbersOnly) {
    EXPECT_EQ(wholeNumber(" 00123 "), 123);
    for (const char* text : {"", " ", "12,5", "-1", "1 2", "A", "99999999999999999999"}) {
        EXPECT_EQ(wholeNumber(text), std::nullopt) << text;
    }
}

}  // namespace
}  // namespace tarn::practice::test
