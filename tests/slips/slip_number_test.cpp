// The slip number: both check digits and the running number.
#include "slips/slip_number.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "runtime/runtime_error.h"

namespace tarn::test {
namespace {

const Portfolio isWallet57{.ID_CRT_COB = "5",
                           .ID_PES_BAN = "1016",
                           .NR_CRT_CNAB = "57",
                           .CD_AGE_BAN_CNAB = "1123",
                           .NR_CCOR_CNAB = "456789"};
const Portfolio otherPortfolio{.ID_CRT_COB = "6",
                               .ID_PES_BAN = "1084",
                               .NR_CRT_CNAB = "101",
                               .CD_AGE_BAN_CNAB = "",
                               .NR_CCOR_CNAB = ""};

// Number of the run-time error that `routine` raises; 0: none.
int errorOf(const std::function<void()>& routine) {
    try {
        routine();
    } catch (const RuntimeError& error) {
        return static_cast<int>(error.number());
    }
    return 0;
}

std::vector<std::string> printed(const SlipNumber& number) {
    return {number.digits, std::to_string(number.digit), number.NR_BOL_BANC};
}

using Printed = std::vector<std::string>;

TEST(DigitoModulo10, AddsUpByHand) {
    // Weights 1 and 2 in turn over 0000000001234 1123 456789 add up to 63.
    EXPECT_EQ(DigitoModulo10("0000000001234", "1123", "456789"), 7);
}

// The third fields of two specimen slips that circulate everywhere, 91020.15000-8 and
// 95000.06330-5, end in a zero: its weight of 2 shifts the weights to those used here.
TEST(DigitoModulo10, AgreesWithPublishedSlips) {
    EXPECT_EQ(DigitoModulo10("0000000000000", "0910", "201500"), 8);
    EXPECT_EQ(DigitoModulo10("0000000000000", "0950", "000633"), 5);
}

TEST(DigitoModulo10, AddsTheDigitsOfAProduct) {
    const std::string zeros(7, '0');
    EXPECT_EQ(DigitoModulo10("0000000000000", zeros, "000"), 0);  // a result of 10
    EXPECT_EQ(DigitoModulo10("5000000000000", zeros, "000"), 5);  // odd position: 5
    EXPECT_EQ(DigitoModulo10("0500000000000", zeros, "000"), 9);  // even position: 10, 1
    EXPECT_EQ(DigitoModulo10("0900000000000", zeros, "000"), 1);  // even position: 18, 9
    EXPECT_EQ(DigitoModulo10("0000000000000", zeros, "001"), 9);  // position 23 is odd
}

TEST(DigitoModulo10, TakesHyphensOutAndThe23FirstCharacters) {
    EXPECT_EQ(DigitoModulo10("0000000001234", "112-3", "45678-9"), 7);
    EXPECT_EQ(DigitoModulo10("0000000001234", "1123", "4567891"), 7);
    EXPECT_EQ(DigitoModulo10("0000000001234", "1123", "456789X"), 7);
    EXPECT_EQ(DigitoModulo10("-0000000001234", "1123", "456789"), 7);
}

TEST(DigitoModulo10, RefusesAShortJoinAndWhatIsNoDigit) {
    EXPECT_EQ(errorOf([] { DigitoModulo10("0000000001234", "1123", "45678"); }), 5);
    EXPECT_EQ(errorOf([] { DigitoModulo10("0000000001234", "1123", "4567-8"); }), 5);
    EXPECT_EQ(errorOf([] { DigitoModulo10("0000000001234", "112", "4567ã"); }), 5);
    EXPECT_EQ(errorOf([] { DigitoModulo10("0000000001234", "1123", "45678X"); }), 13);
    EXPECT_EQ(errorOf([] { DigitoModulo10("0000000001234", "11 3", "456789"); }), 13);
    EXPECT_EQ(errorOf([] { DigitoModulo10("0000000001234", "112ã", "456789"); }), 13);
}

TEST(DigitoModulo11, AddsUpByHand) {
    EXPECT_EQ(DigitoModulo11("1234567"), 9);  // 112, remainder 2
}

// Weights 2 to 8 from the right are the head of the bank's own longer rule: published
// for its number 1961005.
TEST(DigitoModulo11, AgreesWithAPublishedNumber) {
    EXPECT_EQ(DigitoModulo11("1961005"), 0);
}

TEST(DigitoModulo11, HasARuleForEachRemainder) {
    EXPECT_EQ(DigitoModulo11("0000000"), 0);  // 0
    EXPECT_EQ(DigitoModulo11("0000014"), 0);  // 3 + 8 = 11: 0
    EXPECT_EQ(DigitoModulo11("0000006"), 0);  // 12: 1
    EXPECT_EQ(DigitoModulo11("0000001"), 9);  // 2
    EXPECT_EQ(DigitoModulo11("0000007"), 8);  // 14: 3
    EXPECT_EQ(DigitoModulo11("0000002"), 7);  // 4
    EXPECT_EQ(DigitoModulo11("0000400"), 6);  // 16: 5
    EXPECT_EQ(DigitoModulo11("0000003"), 5);  // 6
    EXPECT_EQ(DigitoModulo11("0001000"), 6);  // 5
    EXPECT_EQ(DigitoModulo11("0100000"), 4);  // 7
    EXPECT_EQ(DigitoModulo11("1000000"), 3);  // 8
    EXPECT_EQ(DigitoModulo11("0000013"), 2);  // 3 + 6 = 9
    EXPECT_EQ(DigitoModulo11("0000005"), 1);  // 10
}

TEST(DigitoModulo11, RefusesWhatIsNoDigitAndCountsSeven) {
    EXPECT_EQ(DigitoModulo11("12345679"), 9);
    EXPECT_EQ(errorOf([] { DigitoModulo11("123456"); }), 5);
    EXPECT_EQ(errorOf([] { DigitoModulo11("-000005"); }), 13);
}

TEST(RunningNumber, OfWallet57IsTheNumberItselfOnTheServer) {
    RunningNumber number(isWallet57, "1234");
    EXPECT_EQ(printed(number.slipNumber()), (Printed{"0000000001234", "7", "1234"}));
    number.advance();
    EXPECT_EQ(printed(number.slipNumber()), (Printed{"0000000001235", "6", "1235"}));
}

TEST(RunningNumber, OfWallet57KeepsAFraction) {
    RunningNumber number(isWallet57, "12,5");
    EXPECT_EQ(number.slipNumber().digits, "0000000000013");
    EXPECT_EQ(number.slipNumber().NR_BOL_BANC, "12,5");
    number.advance();
    EXPECT_EQ(number.slipNumber().NR_BOL_BANC, "13,5");
}

TEST(RunningNumber, OfWallet57DropsLeadingZerosOnTheServer) {
    EXPECT_EQ(RunningNumber(isWallet57, "0007").slipNumber().NR_BOL_BANC, "7");
    EXPECT_EQ(RunningNumber(isWallet57, "1.000").slipNumber().NR_BOL_BANC, "1000");
}

TEST(RunningNumber, OfWallet57GoesOnPastThirteenDigits) {
    RunningNumber number(isWallet57, "9999999999999");
    EXPECT_EQ(number.slipNumber().digits, "9999999999999");
    number.advance();
    // 10000000000000 1123 45678, the account's 9 left out: 1 + 1+2+2+6 + 4+1+6+5+8 = 36.
    EXPECT_EQ(printed(number.slipNumber()), (Printed{"10000000000000", "4", "10000000000000"}));
}

TEST(RunningNumber, OfSevenDigitsGoesWithItsDigit) {
    RunningNumber number(otherPortfolio, "1234567");
    EXPECT_EQ(printed(number.slipNumber()), (Printed{"1234567", "9", "12345679"}));
}

TEST(RunningNumber, OfSevenDigitsIsFilledWithZeros) {
    RunningNumber number(otherPortfolio, "9");
    EXPECT_EQ(printed(number.slipNumber()), (Printed{"0000009", "4", "00000094"}));
    number.advance();
    EXPECT_EQ(printed(number.slipNumber()), (Printed{"0000010", "8", "00000108"}));
}

TEST(RunningNumber, OfSevenDigitsTakesTheMaskAtOnce) {
    RunningNumber number(otherPortfolio, "12,5");
    EXPECT_EQ(number.slipNumber().digits, "0000013");
    number.advance();
    EXPECT_EQ(number.slipNumber().digits, "0000014");
}

TEST(RunningNumber, OfSevenDigitsHasNoNextOneAfterTheLast) {
    RunningNumber number(otherPortfolio, "9999999");
    EXPECT_EQ(number.slipNumber().digits, "9999999");
    EXPECT_EQ(errorOf([&number] { number.advance(); }), 5);
}

TEST(RunningNumber, OfSevenDigitsTooLongIsGivenOnceWithAllItsDigits) {
    RunningNumber number(otherPortfolio, "12345678");
    EXPECT_EQ(printed(number.slipNumber()), (Printed{"12345678", "9", "123456789"}));
    EXPECT_EQ(errorOf([&number] { number.advance(); }), 5);
}

TEST(RunningNumber, IsANumber) {
    for (const char* typed : {"", ",", "1,,2", "1e3", "abc"}) {
        EXPECT_EQ(errorOf([typed] { RunningNumber(isWallet57, typed); }), 13) << typed;
        EXPECT_EQ(errorOf([typed] { RunningNumber(otherPortfolio, typed); }), 13) << typed;
    }
}

// "-" doesn't count in wallet 57; among seven digits it is none.
TEST(RunningNumber, BelowZero) {
    EXPECT_EQ(printed(RunningNumber(isWallet57, "-1234").slipNumber()),
              (Printed{"-0000000001234", "7", "-1234"}));
    EXPECT_EQ(errorOf([] { RunningNumber(otherPortfolio, "-5").slipNumber(); }), 13);
}

TEST(Wallet57, IsComparedAsANumber) {
    Portfolio portfolio;
    for (const char* wallet : {"57", "057", " 57 ", "57,0"}) {
        portfolio.NR_CRT_CNAB = wallet;
        EXPECT_TRUE(portfolio.isWallet57()) << wallet;
    }
    for (const char* wallet : {"", "58", "57a", "5 7", "57,1"}) {
        portfolio.NR_CRT_CNAB = wallet;
        EXPECT_FALSE(portfolio.isWallet57()) << wallet;
    }
}

}  // namespace
}  // namespace tarn::test
