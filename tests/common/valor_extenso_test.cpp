#include "common/valor_extenso.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <vector>

#include "runtime/runtime_error.h"

namespace tarn::test {
namespace {

struct Amount {
    double value;
    const char* words;
};

TEST(ValorExtenso, Amounts) {
    for (const Amount& amount : std::vector<Amount>{
             {0, ""},
             {0.01, "UM CENTAVO"},
             {0.50, "CINQUENTA CENTAVOS"},
             {1, "UM REAL"},
             {1.50, "UM REAL E CINQUENTA CENTAVOS"},
             {1.01, "UM REAL E UM CENTAVO"},
             {2, "DOIS REAIS"},
             {21, "VINTE E UM REAIS"},
             {100, "CEM REAIS"},
             {101, "CENTO E UM REAIS"},
             {1000, "UM MIL REAIS"},
             {1001, "UM MIL E UM REAIS"},
             {1100, "UM MIL E CEM REAIS"},
             {1101, "UM MIL, CENTO E UM REAIS"},
             {1234, "UM MIL, DUZENTOS E TRINTA E QUATRO REAIS"},
             {1234.50, "UM MIL, DUZENTOS E TRINTA E QUATRO REAIS E CINQUENTA CENTAVOS"},
             {2500, "DOIS MIL E QUINHENTOS REAIS"},
             {1000000, "UM MILHAO REAIS"},
             {2000000, "DOIS MILHOES REAIS"},
             {1000001, "UM MILHAO E UM REAIS"},
             {100000000, "CEM MILHAO REAIS"},
             {200000000, "DUZENTOS MILHOES REAIS"},
             {1100100, "UM MILHAO, CEM MIL E CEM REAIS"},
             {1001001, "UM MILHAO, UM MIL E UM REAIS"},
             {-5, "MENOS CINCO REAIS"},
             {-1, "MENOS UM REAL"},
             {-0.50, "CINQUENTA CENTAVOS"},
             {-1.50, "MENOS UM REAL E CINQUENTA CENTAVOS"},
         }) {
        EXPECT_EQ(ValorExtenso(amount.value), amount.words) << amount.value;
    }
}

TEST(ValorExtenso, LargeGroups) {
    EXPECT_EQ(ValorExtenso(1e9), "UM BILHAO REAIS");
    EXPECT_EQ(ValorExtenso(2e12), "DOIS TRILHOES REAIS");
    EXPECT_EQ(ValorExtenso(1e15), "UM QUATRILHAO REAIS");
    EXPECT_EQ(ValorExtenso(3e15), "TRES QUATRILHOES REAIS");
    EXPECT_EQ(ValorExtenso(1e18), "CEM QUATRILHAO REAIS");
    EXPECT_EQ(ValorExtenso(9999999999999.99),
              "NOVE TRILHOES, NOVECENTOS E NOVENTA E NOVE BILHOES, NOVECENTOS E NOVENTA E NOVE "
              "MILHOES, NOVECENTOS E NOVENTA E NOVE MIL, NOVECENTOS E NOVENTA E NOVE REAIS E "
              "NOVENTA E NOVE CENTAVOS");
}

TEST(ValorExtenso, FractionsThatRoundUp) {
    EXPECT_EQ(ValorExtenso(1.9996), "DOIS REAL E CEM CENTAVOS");
    EXPECT_EQ(ValorExtenso(0.9996), "UM REAIS E CEM CENTAVOS");
    EXPECT_EQ(ValorExtenso(0.004), "");
    EXPECT_EQ(ValorExtenso(0.999), "CEM CENTAVOS");
    EXPECT_EQ(ValorExtenso(0.998), "NOVENTA E NOVE CENTAVOS");
}

TEST(ValorExtenso, OtherUnits) {
    EXPECT_EQ(ValorExtenso(1, "DOLARES", "DOLAR"), "UM DOLAR");
    EXPECT_EQ(ValorExtenso(2.05, "DOLARES", "DOLAR"), "DOIS DOLARES E CINCO CENTAVOS");
    EXPECT_EQ(ValorExtenso(1, "", ""), "UM ");
}

TEST(ValorExtenso, WhatIsNotFiniteOverflows) {
    EXPECT_THROW(ValorExtenso(std::numeric_limits<double>::infinity()), RuntimeError);
}

// A plain recursion over school numbers up to a million, with this system's joining:
// the word of the number is looked for from the largest name down.
std::string spelled(std::int64_t n) {
    struct Name {
        std::int64_t value;
        const char* word;
    };
    static const std::vector<Name> names = {
        {900, "NOVECENTOS"}, {800, "OITOCENTOS"},   {700, "SETECENTOS"}, {600, "SEISCENTOS"},
        {500, "QUINHENTOS"}, {400, "QUATROCENTOS"}, {300, "TREZENTOS"},  {200, "DUZENTOS"},
        {100, "CENTO"},      {90, "NOVENTA"},       {80, "OITENTA"},     {70, "SETENTA"},
        {60, "SESSENTA"},    {50, "CINQUENTA"},     {40, "QUARENTA"},    {30, "TRINTA"},
        {20, "VINTE"},       {19, "DEZENOVE"},      {18, "DEZOITO"},     {17, "DEZESSETE"},
        {16, "DEZESSEIS"},   {15, "QUINZE"},        {14, "QUATORZE"},    {13, "TREZE"},
        {12, "DOZE"},        {11, "ONZE"},          {10, "DEZ"},         {9, "NOVE"},
        {8, "OITO"},         {7, "SETE"},           {6, "SEIS"},         {5, "CINCO"},
        {4, "QUATRO"},       {3, "TRES"},           {2, "DOIS"},         {1, "UM"}};
    if (n == 1000000) {
        return "UM MILHAO";
    }
    if (n >= 1000) {
        const std::int64_t rest = n % 1000;
        const bool joined = rest < 100 || rest % 100 == 0;
        const std::string thousands = spelled(n / 1000) + " MIL";
        return rest == 0 ? thousands : thousands + (joined ? " E " : ", ") + spelled(rest);
    }
    if (n == 100) {
        return "CEM";
    }
    for (const Name& name : names) {
        if (n == name.value) {
            return name.word;
        }
        if (n > name.value) {
            return std::string(name.word) + " E " + spelled(n - name.value);
        }
    }
    return "";
}

TEST(ValorExtenso, AgreesWithAPlainRecursionUpToAMillion) {
    for (std::int64_t n = 1; n <= 1000000; n += n < 12000 ? 1 : 17) {
        const std::string wanted = spelled(n) + (n == 1 ? " REAL" : " REAIS");
        ASSERT_EQ(ValorExtenso(static_cast<double>(n)), wanted) << n;
    }
    EXPECT_EQ(ValorExtenso(1000000), spelled(1000000) + " REAIS");
}

TEST(ValorExtenso, EveryCentOfSmallAndLargeAmounts) {
    for (const std::int64_t whole : {0, 1, 2, 99, 1234, 999999}) {
        for (std::int64_t cents = 1; cents < 100; ++cents) {
            const double value = static_cast<double>(whole * 100 + cents) / 100;
            std::string wanted = spelled(cents) + (cents == 1 ? " CENTAVO" : " CENTAVOS");
            if (whole > 0) {
                wanted.insert(0, spelled(whole) + (whole == 1 ? " REAL" : " REAIS") + " E ");
            }
            ASSERT_EQ(ValorExtenso(value), wanted) << whole << "," << cents;
        }
    }
}

}  // namespace
}  // namespace tarn::test
