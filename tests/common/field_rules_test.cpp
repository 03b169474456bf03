#include "common/field_rules.h"

#include <gtest/gtest.h>

#include "runtime/runtime_error.h"
#include "tests/support/boxes.h"
#include "tests/support/fixed_machine.h"
#include "tests/support/scripted_boxes.h"

namespace tarn::test {
namespace {

constexpr Date today{20, 3, 2012};

TEST(KeyFilters, PassTheirKeysAndBeepAtTheOthers) {
    for (std::int16_t pressed = 0; pressed < 256; ++pressed) {
        const bool digit = pressed >= 48 && pressed <= 57;
        FixedMachine machine;
        std::int16_t key = pressed;
        const bool comma = digit || pressed == 8 || pressed == 44;
        EXPECT_EQ(SoNumeroVirgula(key, machine), comma ? pressed : 0) << pressed;
        EXPECT_EQ(key, comma ? pressed : 0) << pressed;
        EXPECT_EQ(machine.beeps, comma ? 0 : 1) << pressed;
        machine.beeps = 0;
        key = pressed;
        const bool whole = digit || pressed == 8;
        EXPECT_EQ(SoNumeroInteiro(key, machine), whole ? pressed : 0) << pressed;
        EXPECT_EQ(key, whole ? pressed : 0) << pressed;
        EXPECT_EQ(machine.beeps, whole ? 0 : 1) << pressed;
    }
}

TEST(KeyFilters, CodesOutsideTheByteRange) {
    FixedMachine machine;
    for (const std::int16_t pressed : {std::int16_t{-1}, std::int16_t{304}, std::int16_t{8364}}) {
        std::int16_t key = pressed;
        EXPECT_EQ(SoNumeroVirgula(key, machine), 0);
    }
    EXPECT_EQ(machine.beeps, 3);
}

TEST(KeyFilters, JudgeEveryCharacter) {
    for (char32_t character = 0; character < 0x20000; ++character) {
        const bool digit = character >= '0' && character <= '9';
        FixedMachine machine;
        EXPECT_TRUE(takes(KeyFilter::None, character, machine));
        EXPECT_EQ(machine.beeps, 0);
        const bool decimal = digit || character == ',';
        ASSERT_EQ(takes(KeyFilter::Decimal, character, machine), decimal)
            << static_cast<unsigned>(character);
        ASSERT_EQ(takes(KeyFilter::Integer, character, machine), digit)
            << static_cast<unsigned>(character);
        ASSERT_EQ(machine.beeps, (decimal ? 0 : 1) + (digit ? 0 : 1))
            << static_cast<unsigned>(character);
    }
}

TEST(KeyFilters, TakePunctuationOutOfWhatIsPasted) {
    FixedMachine machine;
    EXPECT_EQ(takenOf(KeyFilter::Decimal, " 1.234,50 ", machine), "1234,50");
    EXPECT_EQ(takenOf(KeyFilter::Integer, "1.234,50", machine), "123450");
    EXPECT_EQ(takenOf(KeyFilter::Decimal, "31/03-2012", machine), "31032012");
    EXPECT_EQ(takenOf(KeyFilter::Decimal, " ./-", machine), "");
    EXPECT_EQ(takenOf(KeyFilter::Integer, ",", machine), "");
    EXPECT_EQ(takenOf(KeyFilter::Decimal, "", machine), "");
    EXPECT_EQ(takenOf(KeyFilter::None, "R$ 1,5\r\n", machine), "R$ 1,5\r\n");
    EXPECT_EQ(machine.beeps, 0);
}

TEST(KeyFilters, RefuseAWholePasteForOneCharacter) {
    for (const char* pasted : {"12a", "R$ 5", "1\n2", "12\r\n", "1\t", "nº 5",
                               "1\xC2\xA0"
                               "000",
                               "\xEF\xBC\x91", "\b1", "1e3"}) {
        for (const KeyFilter filter : {KeyFilter::Decimal, KeyFilter::Integer}) {
            FixedMachine machine;
            EXPECT_EQ(takenOf(filter, pasted, machine), std::nullopt) << pasted;
            EXPECT_EQ(machine.beeps, 1) << pasted;
        }
    }
}

TEST(DateField, CompletesWhatWasTyped) {
    EXPECT_EQ(dateOnLeave("15", today), "15/03/2012");
    EXPECT_EQ(dateOnLeave("1", today), "01/03/2012");
    EXPECT_EQ(dateOnLeave("1503", today), "15/03/2012");
    EXPECT_EQ(dateOnLeave("150311", today), "15/03/2011");
    EXPECT_EQ(dateOnLeave("150312", today), "15/03/2012");
    EXPECT_EQ(dateOnLeave("15032012", today), "15/03/2012");
    EXPECT_EQ(dateOnLeave("15035", today), "15/03/2005");
    EXPECT_EQ(dateOnLeave("1503999", today), "15/03/2999");
    EXPECT_EQ(dateOnLeave("150", today), "15/00/2012");
    EXPECT_EQ(dateOnLeave("15", {1, 11, 987}), "15/11/0987");
}

TEST(DateField, NothingIsTested) {
    EXPECT_EQ(dateOnLeave("99992012", today), "99/99/2012");
    EXPECT_EQ(dateOnLeave("", today), "");
    EXPECT_EQ(dateOnLeave(",", today), ",/03/2012");
    EXPECT_EQ(dateOnLeave("1,", today), "01/03/2012");
    EXPECT_EQ(dateOnLeave("1503,5", today), "15/03/20,5");
    EXPECT_EQ(dateOnLeave("15,,", today), "15/,,/2012");
    EXPECT_EQ(dateOnLeave("1503,,,,", today), "15/03/,,,,");
    EXPECT_EQ(dateOnLeave("150320123", today), "15/03/2012");
    EXPECT_EQ(dateOnLeave("15/03/2012", today), "15//0/3/20");
}

TEST(DateField, IsEditedWithoutSlashes) {
    EXPECT_EQ(dateOnEnter("15/03/2012"), "15032012");
    EXPECT_EQ(dateOnEnter(""), "");
    EXPECT_EQ(dateOnEnter("1/5"), "15");
    EXPECT_EQ(dateOnEnter("15/03/2012").size(), static_cast<std::size_t>(dateLengthEditing));
    EXPECT_EQ(dateOnLeave("15032012", today).size(), static_cast<std::size_t>(dateLengthShown));
}

TEST(DateField, LeavingShowsWhatEnteringTookApart) {
    EXPECT_EQ(dateOnLeave(dateOnEnter("29/02/2012"), today), "29/02/2012");
    EXPECT_EQ(dateOnLeave(dateOnEnter(",/03/2012"), today), "00/32/2012");
}

TEST(DepositDate, IsTestedOnTheCalendar) {
    for (const char* good : {"15", "1503", "29022012", "31122012"}) {
        const FieldResult result = testedDateOnLeave(good, today);
        EXPECT_EQ(result.text, dateOnLeave(good, today));
        EXPECT_FALSE(result.box.has_value() || result.refocus) << good;
    }
    const Box refusal{.text = "Data Inválida.      ", .icon = BoxIcon::Critical, .title = "Aviso"};
    for (const char* bad :
         {"31022012", "29022011", "12312012", "99992012", "150", "00", "15030099", ","}) {
        const FieldResult result = testedDateOnLeave(bad, today);
        EXPECT_EQ(result.text, "") << bad;
        EXPECT_EQ(result.box, refusal) << bad;
        EXPECT_EQ(result.textUnderBox, dateOnLeave(bad, today)) << bad;
        EXPECT_TRUE(result.refocus) << bad;
    }
}

TEST(DepositDate, EmptyIsNotTested) {
    const FieldResult result = testedDateOnLeave("", today);
    EXPECT_EQ(result.text, "");
    EXPECT_FALSE(result.box.has_value() || result.refocus);
}

TEST(QuantityField, FormatsNumbers) {
    const auto shown = [](std::string_view text) {
        const FieldResult result = quantityOnLeave(text, messagesQtde);
        EXPECT_FALSE(result.box.has_value() || result.refocus) << text;
        return result.text;
    };
    EXPECT_EQ(shown("12,5"), "12,500");
    EXPECT_EQ(shown("0"), "0,000");
    EXPECT_EQ(shown("1234567,8"), "1.234.567,800");
    EXPECT_EQ(shown("9.999.999,999"), "9.999.999,999");
    EXPECT_EQ(shown("9999999,9995"), "10.000.000,000");
    EXPECT_EQ(shown("12.345.678"), "12.345.678,000");
    EXPECT_EQ(shown("-5"), "-5,000");
    EXPECT_EQ(shown(" 7 "), "7,000");
    EXPECT_EQ(shown("0,0005"), "0,001");
}

TEST(QuantityField, RefusesWhatIsNoNumber) {
    for (const char* text : {"", " ", ",", "1,,2", "ABC", "1e3"}) {
        const FieldResult result = quantityOnLeave(text, messagesQtde);
        EXPECT_EQ(result.text, "0,000") << text;
        EXPECT_TRUE(result.refocus) << text;
        EXPECT_EQ(result.box, attention("Quantidade inválido.     ")) << text;
    }
}

TEST(QuantityField, RefusesTenMillionAndMore) {
    for (const char* text : {"10000000", "12345678,9", "99999999999"}) {
        const FieldResult result = quantityOnLeave(text, messagesQtde);
        EXPECT_EQ(result.text, "0,000") << text;
        EXPECT_TRUE(result.refocus) << text;
        EXPECT_EQ(result.box, attention("Quantidade máxima permitida é 9.999.999,999 ")) << text;
    }
}

TEST(QuantityField, MessagesOfTheWeights) {
    EXPECT_EQ(quantityOnLeave("", grossWeightMessages).box, attention("Peso Bruto inválido.     "));
    EXPECT_EQ(quantityOnLeave("10000000", grossWeightMessages).box,
              attention("Peso Bruto máximo permitido é 9.999.999,999 "));
    EXPECT_EQ(quantityOnLeave("", netWeightMessages).box, attention("Peso Líquido inválido.     "));
    EXPECT_EQ(quantityOnLeave("10000000", netWeightMessages).box,
              attention("Peso Líquido máximo permitido é 9.999.999,999 "));
}

TEST(MoneyField, Formats) {
    EXPECT_EQ(moneyOnLeave("1234,5").text, "1.234,50");
    EXPECT_EQ(moneyOnLeave("1.234,50").text, "1.234,50");
    EXPECT_EQ(moneyOnLeave(",5").text, "0,50");
    EXPECT_EQ(moneyOnLeave(" 7 ").text, "7,00");
    EXPECT_EQ(moneyOnLeave("").text, "");
    EXPECT_EQ(moneyOnLeave("  ").text, "  ");
    EXPECT_FALSE(moneyOnLeave("1").box.has_value());
}

TEST(MoneyField, Limit) {
    const FieldResult top = moneyOnLeave("9999999999999,99");
    EXPECT_EQ(top.text, "9.999.999.999.999,99");
    EXPECT_FALSE(top.refocus);
    const FieldResult over = moneyOnLeave("10000000000000");
    EXPECT_EQ(over.text, "10000000000000");
    EXPECT_TRUE(over.refocus);
    EXPECT_EQ(over.box, (Box{.text = "O valor máximo permitido é de R$ 9.999.999.999.999,99",
                             .icon = BoxIcon::Exclamation,
                             .title = "TarnEmissao"}));
}

TEST(MoneyField, ATextThatIsNoNumberIsARunTimeError) {
    try {
        moneyOnLeave(",");
        FAIL() << "no error";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), RuntimeErrorCode::TypeMismatch);
    }
}

}  // namespace
}  // namespace tarn::test
