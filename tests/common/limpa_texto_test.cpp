#include "common/limpa_texto.h"

#include <gtest/gtest.h>

namespace tarn::test {
namespace {

TEST(TrocaAspas, TurnsTheFourQuotes) {
    EXPECT_EQ(TrocaAspas("a'b\"c‘d’e"), "a´b´c´d´e");
    EXPECT_EQ(TrocaAspas("“x”"), "“x”");
    EXPECT_EQ(TrocaAspas(""), "");
    EXPECT_EQ(TrocaAspas("O''R"), "O´´R");
}

TEST(TrocaAspas, NoTextStaysNone) {
    EXPECT_EQ(TrocaAspas(std::nullopt), std::nullopt);
}

TEST(LimpaTexto, CapitalsInPlaceAndACleanedResult) {
    std::string value = "  são d'ávila ";
    EXPECT_EQ(LimpaTexto(value), "SÃO D´ÁVILA");
    EXPECT_EQ(value, "  SÃO D'ÁVILA ");
}

}  // namespace
}  // namespace tarn::test
