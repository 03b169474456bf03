// Every mask that a screen or a document names, with rounding at the half.
#include "runtime/mask.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <limits>
#include <random>

#include "runtime/numbers.h"
#include "runtime/runtime_error.h"

namespace tarn::test {
namespace {

struct MaskCase {
    const char* mask;
    double value;
    const char* shown;
};

void expectAll(std::initializer_list<MaskCase> cases) {
    for (const MaskCase& c : cases) {
        EXPECT_EQ(formatNumber(c.value, c.mask), c.shown) << c.mask << " over " << c.value;
    }
}

TEST(Mask, LeadingZeros) {
    expectAll({
        {"000000", 0, "000000"},
        {"000000", 42, "000042"},
        {"000000", 1234567, "1234567"},
        {"0000000", 12.5, "0000013"},
        {"0000000", 12.4, "0000012"},
        {"0000000", 99999999, "99999999"},
        {"0000000000000", 123, "0000000000123"},
        {"0000000000000", 9999999999999, "9999999999999"},
        {"0000000000000", 10000000000000, "10000000000000"},
        {"0000000000000", 12.5, "0000000000013"},
        {"00", 5, "05"},
        {"00", 0, "00"},
        {"0000", 12, "0012"},
        {"000000000000000000.000", 1234.5, "000000000000001234,500"},
        {"000000000000000000.000", 1.9996, "000000000000000002,000"},
    });
}

TEST(Mask, Rates) {
    expectAll({
        {"####0.00", 1234.5, "1234,50"},
        {"####0.00", 0, "0,00"},
        {"####0.00", 0.5, "0,50"},
        {"####0.00", 18, "18,00"},
        {"####0.00", 1234567.891, "1234567,89"},
        {"####0", 18, "18"},
        {"####0", 0, "0"},
        {"####0", 17.5, "18"},
        {"####0", 0.4, "0"},
    });
}

TEST(Mask, GroupedAmounts) {
    for (const char* mask :
         {"##,###0.00", "###,###0.00", "###,##0.00", "##,##0.00", "#,###,##0.00"}) {
        expectAll({
            {mask, 0, "0,00"},
            {mask, 0.5, "0,50"},
            {mask, 12, "12,00"},
            {mask, 999.99, "999,99"},
            {mask, 999.995, "1.000,00"},
            {mask, 1234.5, "1.234,50"},
            {mask, 123456.789, "123.456,79"},
            {mask, 1234567.8, "1.234.567,80"},
            {mask, 9999999999999.99, "9.999.999.999.999,99"},
            {mask, -1234.5, "-1.234,50"},
        });
    }
}

TEST(Mask, ThreeDecimals) {
    for (const char* mask :
         {"###,###,###,##0.000", "##,##0.000", "#,###,##0.000", "###,###0.000"}) {
        expectAll({
            {mask, 0, "0,000"},
            {mask, 12.5, "12,500"},
            {mask, 12345.6785, "12.345,679"},
            {mask, 9999999.9995, "10.000.000,000"},
            {mask, 0.0005, "0,001"},
            {mask, 0.00049, "0,000"},
        });
    }
    expectAll({
        {"##0.000", 12.5, "12,500"},
        {"##0.000", 12500, "12500,000"},
        {"##0.000", 0.25, "0,250"},
    });
}

TEST(Mask, OperationCode) {
    expectAll({
        {"#,#00", 5102, "5.102"},
        {"#,#00", 5, "05"},
        {"#,#00", 0, "00"},
        {"#,#00", 512, "512"},
        {"#,#00", 51021, "51.021"},
    });
}

TEST(Mask, BareNumberSignPrintsNothingForZero) {
    expectAll({
        {"#", 0, ""},
        {"#", 0.4, ""},
        {"#", 0.5, "1"},
        {"#", 7, "7"},
        {"#", 12345678000190, "12345678000190"},
    });
}

TEST(Mask, RoundsHalfAwayFromZeroOnTheDecimalValue) {
    expectAll({
        {"0.00", 1.005, "1,01"},
        {"0.00", 2.675, "2,68"},
        {"0.00", 1.115, "1,12"},
        {"0.00", 0.125, "0,13"},
        {"0.00", -1.005, "-1,01"},
        {"0.00", -0.125, "-0,13"},
        {"0.00", 0.005, "0,01"},
        {"0.00", 0.0049999, "0,00"},
        {"0.00", 0.995, "1,00"},
        {"0.00", 9.995, "10,00"},
        {"0.00", 1.1 * 1.1, "1,21"},
        {"0.00", 0.1 + 0.2, "0,30"},
        {"0", 0.5, "1"},
        {"0", 1.5, "2"},
        {"0", 2.5, "3"},
        {"0", 0.49999999999999994, "1"},  // 0.5 to 15 digits
    });
}

TEST(Mask, ZeroHasNoSign) {
    expectAll({
        {"0.00", -0.001, "0,00"},
        {"##,###0.00", -0.0, "0,00"},
        {"#", -0.3, ""},
        {"0.00", -0.005, "-0,01"},
    });
}

TEST(Mask, DigitsPastTheFifteenthAreZeros) {
    expectAll({
        {"0", 1e15, "1000000000000000"},
        {"0", 1234567890123456, "1234567890123460"},
        {"##,###0.00", 123456789012345.67, "123.456.789.012.346,00"},
        {"##,###0.00", 1e18, "1.000.000.000.000.000.000,00"},
        {"0.00", 1e-5, "0,00"},
        {"0.000000", 0.0000125, "0,000013"},
    });
}

TEST(Mask, WhatIsNotFiniteOverflows) {
    try {
        formatNumber(std::numeric_limits<double>::infinity(), "0.00");
        FAIL() << "no error";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), RuntimeErrorCode::Overflow);
    }
}

// The C library's correctly rounded 15 digits, put in the plain form.
std::string fifteenDigits(double value) {
    std::array<char, 64> text{};
    const int length = std::snprintf(text.data(), text.size(), "%.14e", value);
    return {text.data(), static_cast<std::size_t>(length)};
}

TEST(Mask, FifteenDigitsAgreeWithTheLibraryOverAllMagnitudes) {
    std::mt19937_64 random(20120315);
    std::uniform_real_distribution<double> mantissa(1.0, 10.0);
    for (int exponent = -6; exponent <= 16; ++exponent) {
        for (int i = 0; i < 2000; ++i) {
            const double value = mantissa(random) * std::pow(10.0, exponent);
            std::string digits;
            for (const char c : numberText(value)) {
                if (c != ',' && (c != '0' || !digits.empty())) {
                    digits.push_back(c);
                }
            }
            digits.resize(std::max<std::size_t>(digits.size(), 15), '0');
            std::string wanted = fifteenDigits(value);
            wanted = wanted.substr(0, 1) + wanted.substr(2, 14);
            ASSERT_EQ(digits.substr(0, 15), wanted) << "at 1e" << exponent;
        }
    }
}

TEST(Mask, PowersOfTenAndTheirNeighbours) {
    for (int exponent = 0; exponent <= 14; ++exponent) {
        const double power = std::pow(10.0, exponent);
        std::string digits(static_cast<std::size_t>(exponent) + 1, '0');
        digits.front() = '1';
        EXPECT_EQ(formatNumber(power, "0"), digits);
        EXPECT_EQ(formatNumber(std::nextafter(power, 0), "0"), digits);
        EXPECT_EQ(formatNumber(std::nextafter(power, 1e300), "0"), digits);
    }
    EXPECT_EQ(formatNumber(1e-4, "0.0000"), "0,0001");
    EXPECT_EQ(formatNumber(std::nextafter(1e-4, 0), "0.0000"), "0,0001");
    EXPECT_EQ(formatNumber(1e-3, "0.0000"), "0,0010");
    EXPECT_EQ(formatNumber(1e-2, "0.0000"), "0,0100");
    EXPECT_EQ(formatNumber(std::nextafter(1e-2, 0), "0.0000"), "0,0100");
    EXPECT_EQ(formatNumber(1e-1, "0.0000"), "0,1000");
}

TEST(Mask, AppendsBehindWhatIsThere) {
    std::string line = "TOTAL ";
    appendNumber(line, 1234.5, "##,###0.00");
    EXPECT_EQ(line, "TOTAL 1.234,50");
}

// Taken apart as they are compiled.
constexpr NumberMask wholeMask("#,#00");
static_assert(wholeMask.wholeDigits == 2 && wholeMask.grouped && wholeMask.mostDecimals == 0);
constexpr NumberMask amountMask("##,###0.00");
static_assert(amountMask.wholeDigits == 1 && amountMask.grouped && amountMask.leastDecimals == 2);

TEST(MaskOverText, EmptyAndUnreadableTextsStay) {
    EXPECT_EQ(formatText("", "0.00"), "");
    EXPECT_EQ(formatText("ISENTO", "#"), "ISENTO");
    EXPECT_EQ(formatText("5102/6102", "#,#00"), "5102/6102");
    EXPECT_EQ(formatText(",", "00"), ",");
    EXPECT_EQ(formatText("  ", "00"), "  ");
    EXPECT_EQ(formatText("1,,2", "0.00"), "1,,2");
}

TEST(MaskOverText, NumbersAreReadByTheComma) {
    EXPECT_EQ(formatText("1.234,50", "###,##0.00"), "1.234,50");
    EXPECT_EQ(formatText("1234,5", "###,##0.00"), "1.234,50");
    EXPECT_EQ(formatText("5.102", "#,#00"), "5.102");
    EXPECT_EQ(formatText("5102", "#,#00"), "5.102");
    EXPECT_EQ(formatText("5", "#,#00"), "05");
    EXPECT_EQ(formatText("0", "#"), "");
    EXPECT_EQ(formatText("00000000000000", "#"), "");
    EXPECT_EQ(formatText("01234567000190", "#"), "1234567000190");
    EXPECT_EQ(formatText("1,", "00"), "01");
    EXPECT_EQ(formatText("12,5", "0000000"), "0000013");
    EXPECT_EQ(formatText(" -0,001 ", "0.00"), "0,00");
    EXPECT_EQ(formatText("-7", "0.00"), "-7,00");
    EXPECT_EQ(formatText("1,005", "0.00"), "1,01");
    EXPECT_EQ(formatText(",5", "##,###0.00"), "0,50");
    EXPECT_EQ(formatText("0,05", "0.0"), "0,1");
    EXPECT_EQ(formatText("999,995", "##,###0.00"), "1.000,00");
}

TEST(MaskOverText, LongNumbersKeepFifteenDigits) {
    EXPECT_EQ(formatText("12345678901234567", "0"), "12345678901234600");
    EXPECT_EQ(formatText("123456789012345,6", "0"), "123456789012346");
    EXPECT_EQ(formatText("0,00000000000000000000000012", "0.00"), "0,00");
    EXPECT_EQ(formatText(std::string(400, '9'), "0"), std::string(400, '9'));
}

// What is formatted straight from its digits must look as if it had been converted.
TEST(MaskOverText, ShortTextsPrintAsTheirValueDoes) {
    std::mt19937_64 random(7);
    for (int i = 0; i < 20000; ++i) {
        const std::uint64_t number = random() % 1'000'000'000'000'000ULL;
        const std::string whole = std::to_string(number >> (random() % 40));
        const std::size_t decimals = random() % whole.size();
        std::string digits = whole.substr(0, whole.size() - decimals);
        digits.push_back(',');
        digits.append(whole, whole.size() - decimals);
        const double value = readComma(digits);
        for (const char* mask : {"##,###0.00", "##0.000", "0000000", "#"}) {
            ASSERT_EQ(formatText(digits, mask), formatNumber(value, mask)) << digits;
        }
    }
}

TEST(FillMask, TaxNumbers) {
    EXPECT_EQ(fillMask("12345678901", "@@@.@@@.@@@-@@"), "123.456.789-01");
    EXPECT_EQ(fillMask("12345678000190", "@@.@@@.@@@/@@@@-@@"), "12.345.678/0001-90");
    EXPECT_EQ(fillMask("00000000000000", "@@.@@@.@@@/@@@@-@@"), "00.000.000/0000-00");
}

TEST(FillMask, FillsFromTheRight) {
    EXPECT_EQ(fillMask("1234567000190", "@@.@@@.@@@/@@@@-@@"), " 1.234.567/0001-90");
    EXPECT_EQ(fillMask("", "@@.@@@.@@@/@@@@-@@"), "  .   .   /    -  ");
    EXPECT_EQ(fillMask("ISENTO", "@@.@@@.@@@/@@@@-@@"), "  .   .   /ISEN-TO");
    EXPECT_EQ(fillMask("AÇÃO", "@@@-@@@"), "  A-ÇÃO");
}

TEST(FillMask, CharactersBeyondTheMaskStandInFront) {
    EXPECT_EQ(fillMask("9912345678901", "@@@.@@@.@@@-@@"), "99123.456.789-01");
    EXPECT_EQ(fillMask("ÉÇ12345678901", "@@@.@@@.@@@-@@"), "ÉÇ123.456.789-01");
}

TEST(FillMask, CarrierNumberThroughBothMasks) {
    const auto carrier = [](std::string_view text) {
        return fillMask(formatText(text, "#"), "@@.@@@.@@@/@@@@-@@");
    };
    EXPECT_EQ(carrier("12345678000190"), "12.345.678/0001-90");
    EXPECT_EQ(carrier("02345678000190"), " 2.345.678/0001-90");
    EXPECT_EQ(carrier("0"), "  .   .   /    -  ");
    EXPECT_EQ(carrier(""), "  .   .   /    -  ");
    EXPECT_EQ(carrier("ISENTO"), "  .   .   /ISEN-TO");
}

TEST(Mask, AppendTextTellsNumbersFromOtherTexts) {
    std::string line = "R$ ";
    EXPECT_TRUE(appendText(line, "1234,5", "##,###0.00"));
    EXPECT_EQ(line, "R$ 1.234,50");
    for (const std::string_view other : {"", "x", "1,2,3", "1e3"}) {
        EXPECT_FALSE(appendText(line, other, "0.00")) << other;
    }
    EXPECT_EQ(line, "R$ 1.234,50");
}

}  // namespace
}  // namespace tarn::test
