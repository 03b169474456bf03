#include "common/tax_number.h"

#include <gtest/gtest.h>

namespace tarn::test {
namespace {

TEST(IsNaturalPerson, OnlyTheTextZero) {
    EXPECT_TRUE(isNaturalPerson("0"));
    for (const char* other : {"1", "", "00", " 0", "0 "}) {
        EXPECT_FALSE(isNaturalPerson(other)) << other;
    }
}

TEST(CpfCnpj, APersonsElevenDigitsAndACompanysFourteen) {
    EXPECT_EQ(cpfCnpj(true, "12345678909"), "123.456.789-09");
    EXPECT_EQ(cpfCnpj(false, "12345678000195"), "12.345.678/0001-95");
}

TEST(CpfCnpj, ZerosInFrontOfAShortNumber) {
    EXPECT_EQ(cpfCnpj(true, "5678909"), "000.056.789-09");
    EXPECT_EQ(cpfCnpj(false, ""), "00.000.000/0000-00");
}

TEST(CpfCnpj, TheLastCharactersOfALongOneWhateverTheyAre) {
    EXPECT_EQ(cpfCnpj(true, "9912345678909"), "123.456.789-09");
    EXPECT_EQ(cpfCnpj(true, "1ÇAB34567890"), "ÇAB.345.678-90");
}

}  // namespace
}  // namespace tarn::test
