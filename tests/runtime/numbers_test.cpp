#include "runtime/numbers.h"

#include <gtest/gtest.h>

#include <limits>

#include "runtime/runtime_error.h"

namespace tarn::test {
namespace {

template <typename Call>
RuntimeErrorCode errorOf(Call call) {
    try {
        call();
    } catch (const RuntimeError& error) {
        return error.number();
    }
    ADD_FAILURE() << "no error was raised";
    return RuntimeErrorCode::ObjectRequired;
}

TEST(CommaReading, Numbers) {
    EXPECT_EQ(parseComma("0"), 0.0);
    EXPECT_EQ(parseComma("12"), 12.0);
    EXPECT_EQ(parseComma("007"), 7.0);
    EXPECT_EQ(parseComma("1,5"), 1.5);
    EXPECT_EQ(parseComma(",5"), 0.5);
    EXPECT_EQ(parseComma("5,"), 5.0);
    EXPECT_EQ(parseComma("1.234,50"), 1234.5);
    EXPECT_EQ(parseComma("1.2.3"), 123.0);
    EXPECT_EQ(parseComma("1."), 1.0);
    EXPECT_EQ(parseComma("-7,25"), -7.25);
    EXPECT_EQ(parseComma("+7"), 7.0);
    EXPECT_EQ(parseComma("  12,5  "), 12.5);
    EXPECT_EQ(parseComma("9.999.999.999.999,99"), 9999999999999.99);
    EXPECT_EQ(parseComma("0,1"), 0.1);
    EXPECT_EQ(parseComma("12345678901234567890"), 12345678901234567890.0);
    EXPECT_EQ(parseComma("0,123456789012345678"), 0.123456789012345678);
}

TEST(CommaReading, WhatIsNoNumber) {
    for (const char* text :
         {"",    " ",    ",",   "-",   "+",   "-,",    ".",   ".5",  "1,,2", "1,2,3",
          "1e3", "R$ 1", "1 2", "- 1", "--1", "1,5.0", "12A", "1\t", "S/N",  "\xC3\xA7"}) {
        EXPECT_FALSE(parseComma(text).has_value()) << text;
        EXPECT_FALSE(isNumeric(text)) << text;
        EXPECT_EQ(errorOf([&] { readComma(text); }), RuntimeErrorCode::TypeMismatch) << text;
    }
    EXPECT_FALSE(isNumeric(std::string(400, '9')));
    EXPECT_EQ(parseComma("0," + std::string(400, '0') + "1"), 0.0);
}

TEST(PointReading, ReadsUpToTheFirstStrangeCharacter) {
    EXPECT_EQ(readPoint("1.234,5"), 1.234);
    EXPECT_EQ(readPoint("12A"), 12.0);
    EXPECT_EQ(readPoint("0,50"), 0.0);
    EXPECT_EQ(readPoint("2,50"), 2.0);
    EXPECT_EQ(readPoint("1.500,00"), 1.5);
    EXPECT_EQ(readPoint("12.345.678"), 12.345);
    EXPECT_EQ(readPoint("12345678,9"), 12345678.0);
    EXPECT_EQ(readPoint("9.999.999,999"), 9.999);
    EXPECT_EQ(readPoint("-3.5x"), -3.5);
    EXPECT_EQ(readPoint("+3"), 3.0);
    EXPECT_EQ(readPoint(".5"), 0.5);
    EXPECT_EQ(readPoint("5."), 5.0);
}

TEST(PointReading, NoNumberIsZero) {
    for (const char* text : {"", "S/N", "-", ".", "-.", "e5", "R$ 5", ",5", "\r5", "--5"}) {
        EXPECT_EQ(readPoint(text), 0.0) << text;
    }
}

TEST(PointReading, SkipsBlanksTabsAndLineFeedsEverywhere) {
    EXPECT_EQ(readPoint(" 1 2\t3\n.\n5 "), 123.5);
    EXPECT_EQ(readPoint("- 4"), -4.0);
    EXPECT_EQ(readPoint("1 e 2"), 100.0);
    EXPECT_EQ(readPoint("1\r2"), 1.0);
}

TEST(PointReading, Exponents) {
    EXPECT_EQ(readPoint("1e3"), 1000.0);
    EXPECT_EQ(readPoint("1E-2"), 0.01);
    EXPECT_EQ(readPoint("2.5d2"), 250.0);
    EXPECT_EQ(readPoint("2.5D+2"), 250.0);
    EXPECT_EQ(readPoint("7e"), 7.0);
    EXPECT_EQ(readPoint("7e+x"), 7.0);
    EXPECT_EQ(readPoint("7f2"), 7.0);
}

TEST(PointReading, NeverFails) {
    const double largest = std::numeric_limits<double>::max();
    EXPECT_EQ(readPoint("1e999"), largest);
    EXPECT_EQ(readPoint("-1e999"), -largest);
    EXPECT_EQ(readPoint("1e-999"), 0.0);
    EXPECT_EQ(readPoint(std::string(400, '9')), largest);
    EXPECT_EQ(readPoint("0." + std::string(400, '0') + "1"), 0.0);
    EXPECT_EQ(readPoint("1" + std::string(400, '0') + "e-5"), largest);
    EXPECT_EQ(readPoint("-1" + std::string(400, '0') + "e-5"), -largest);
    EXPECT_EQ(readPoint("0." + std::string(400, '0') + "1e5"), 0.0);
    EXPECT_EQ(readPoint("1" + std::string(400, '0') + "e-99999999999999999999"), 0.0);
    EXPECT_EQ(readPoint("0.01e+99999999999999999999"), largest);
}

TEST(NumberText, FifteenDigitsAndAComma) {
    EXPECT_EQ(numberText(0), "0");
    EXPECT_EQ(numberText(-0.0), "0");
    EXPECT_EQ(numberText(7), "7");
    EXPECT_EQ(numberText(1000), "1000");
    EXPECT_EQ(numberText(0.5), "0,5");
    EXPECT_EQ(numberText(-0.5), "-0,5");
    EXPECT_EQ(numberText(12.5), "12,5");
    EXPECT_EQ(numberText(0.05), "0,05");
    EXPECT_EQ(numberText(0.1 + 0.2), "0,3");
    EXPECT_EQ(numberText(1.0 / 3.0), "0,333333333333333");
    EXPECT_EQ(numberText(2.0 / 3.0), "0,666666666666667");
    EXPECT_EQ(numberText(123456789012345), "123456789012345");
    EXPECT_EQ(numberText(-1234567.25), "-1234567,25");
    EXPECT_EQ(numberText(0.9999999999999999), "1");
}

TEST(NumberText, HasNoExponent) {
    EXPECT_EQ(numberText(1e20), "100000000000000000000");
    EXPECT_EQ(numberText(1e-10), "0,0000000001");
    EXPECT_EQ(numberText(1.5e16), "15000000000000000");
    EXPECT_EQ(errorOf([] { numberText(std::numeric_limits<double>::infinity()); }),
              RuntimeErrorCode::Overflow);
}

TEST(Integers, RoundHalfToEven) {
    EXPECT_EQ(readInt16("2,5"), 2);
    EXPECT_EQ(readInt16("3,5"), 4);
    EXPECT_EQ(readInt16("-2,5"), -2);
    EXPECT_EQ(readInt16("033"), 33);
    EXPECT_EQ(readInt32("1.234"), 1234);
    EXPECT_EQ(readInt32("0,5"), 0);
}

TEST(Integers, OverflowAndTypeErrors) {
    EXPECT_EQ(readInt16("32767"), 32767);
    EXPECT_EQ(readInt16("-32768"), -32768);
    EXPECT_EQ(readInt32("2147483647"), 2147483647);
    EXPECT_EQ(readInt32("-2147483648"), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(errorOf([] { readInt16("32767,5"); }), RuntimeErrorCode::Overflow);
    EXPECT_EQ(errorOf([] { readInt16("32768"); }), RuntimeErrorCode::Overflow);
    EXPECT_EQ(errorOf([] { readInt16("-32769"); }), RuntimeErrorCode::Overflow);
    EXPECT_EQ(errorOf([] { readInt32("2147483648"); }), RuntimeErrorCode::Overflow);
    EXPECT_EQ(errorOf([] { readInt16("X"); }), RuntimeErrorCode::TypeMismatch);
    EXPECT_EQ(errorOf([] { readInt32(""); }), RuntimeErrorCode::TypeMismatch);
}

TEST(PointToComma, TurnsEveryPoint) {
    EXPECT_EQ(pointToComma("12.50"), "12,50");
    EXPECT_EQ(pointToComma("1.234.5"), "1,234,5");
    EXPECT_EQ(pointToComma(""), "");
}

}  // namespace
}  // namespace tarn::test
