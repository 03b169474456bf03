#include "cheques/quebra_texto.h"

#include <gtest/gtest.h>

namespace tarn::test {
namespace {

TEST(QuebraTexto, BreaksWhereAWordNoLongerFits) {
    EXPECT_EQ(QuebraTexto("UM DOIS TRES", 8), "UM DOIS\rTRES");
    EXPECT_EQ(QuebraTexto("UM DOIS TRES QUATRO", 9), "UM DOIS\rTRES\rQUATRO");
    EXPECT_EQ(QuebraTexto("UM DOIS TRES", 100), "UM DOIS TRES");
}

TEST(QuebraTexto, TheBlankBetweenWordsIsNotCounted) {
    EXPECT_EQ(QuebraTexto("UM DOIS TRES", 6), "UM DOIS\rTRES") << "2 + 4 fit, and make 7";
    EXPECT_EQ(QuebraTexto("UM DOIS TRES", 5), "UM\rDOIS\rTRES");
    EXPECT_EQ(QuebraTexto("A B C", 2), "A B\rC") << "3 + 1 don't fit in 2";
}

TEST(QuebraTexto, AWordLongerThanTheWidthStandsAlone) {
    EXPECT_EQ(QuebraTexto("A CENTAVOS B", 4), "A\rCENTAVOS\rB");
    EXPECT_EQ(QuebraTexto("CENTAVOS", 4), "CENTAVOS") << "no empty line before it";
}

TEST(QuebraTexto, BlanksAheadAreLostAndDoubledOnesInsideStay) {
    EXPECT_EQ(QuebraTexto("   UM DOIS", 20), "UM DOIS");
    EXPECT_EQ(QuebraTexto("UM  DOIS", 20), "UM  DOIS");
    EXPECT_EQ(QuebraTexto("UM ", 20), "UM ");
}

TEST(QuebraTexto, NothingGivesOneEmptyLine) {
    EXPECT_EQ(QuebraTexto("", 90), "");
    EXPECT_EQ(QuebraTexto("    ", 90), "");
}

TEST(QuebraTexto, CountsCharacters) {
    EXPECT_EQ(QuebraTexto("ÇÃO É ÃO", 4), "ÇÃO É\rÃO");
}

}  // namespace
}  // namespace tarn::test
