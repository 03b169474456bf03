#include "practice/commands/amounts.h"

#include <gtest/gtest.h>

#include "practice/data/tax_numbers.h"

namespace tarn::practice::test {
namespace {

TEST(PracticeAmounts, WritesMoneyWithAPointAndTwoPlaces) {
    EXPECT_EQ(moneyText(123450), "1234.50");
    EXPECT_EQ(moneyText(0), "0.00");
    EXPECT_EQ(moneyText(7), "0.07");
    EXPECT_EQ(moneyText(-1205), "-12.05");
}

TEST(PracticeAmounts, WritesQuantitiesWithoutZerosBehind) {
    EXPECT_EQ(quantityText(12000), "12");
    EXPECT_EQ(quantityText(12500), "12.5");
    EXPECT_EQ(quantityText(1), "0.001");
    EXPECT_EQ(quantityText(0), "0");
}

TEST(PracticeAmounts, RoundsHalfAwayFromZero) {
    EXPECT_EQ(scaled(5, 1, 2), 3);
    EXPECT_EQ(scaled(-5, 1, 2), -3);
    EXPECT_EQ(lineTotal(1240, 250), 310);
    EXPECT_EQ(percentOf(10000, 1850), 1850);
}

TEST(PracticeAmounts, ReadsScreenQuantities) {
    EXPECT_EQ(screenQuantity("1.234,500"), 1234500);
    EXPECT_EQ(screenQuantity("0,000"), 0);
    EXPECT_EQ(screenQuantity("7"), 7000);
    EXPECT_EQ(screenQuantity(",5"), 500);
    for (const char* text : {"", ",", "-1,000", "1,,2", "1e3", "1,2.3", ".5", "9999999999999999"}) {
        EXPECT_EQ(screenQuantity(text), std::nullopt) << text;
    }
}

TEST(PracticeAmounts, ReadsScreenMoney) {
    EXPECT_EQ(screenMoney("1.234,56"), 123456);
    EXPECT_EQ(screenMoney("7"), 700);
    EXPECT_EQ(screenMoney("0,5"), 50);
    EXPECT_EQ(screenMoney("1,500"), 150);
    EXPECT_EQ(screenMoney("9.999.999.999.999,99"), 999999999999999);
    for (const char* text : {"", "1,005", "-1", "R$ 1"}) {
        EXPECT_EQ(screenMoney(text), std::nullopt) << text;
    }
}

TEST(PracticeTaxNumbers, HaveTheirCheckDigits) {
    EXPECT_EQ(companyTaxNumber("112223330001"), "11222333000181");
    EXPECT_EQ(personTaxNumber("123456789"), "12345678909");
}

}  // namespace
}  // namespace tarn::practice::test
