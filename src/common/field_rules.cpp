#include "common/field_rules.h"

#include <utility>

#include "common/boxes.h"
#include "platform/machine.h"
#include "runtime/mask.h"
#include "runtime/numbers.h"
#include "runtime/text.h"

namespace tarn {

namespace {

constexpr std::int16_t backspaceKey = 8;
constexpr std::int16_t commaKey = 44;

std::int16_t filter(std::int16_t& key, bool passes, Machine& machine) {
    if (!passes) {
        key = 0;
        machine.beep();
    }
    return key;
}

bool isIntegerKey(std::int16_t key) {
    return (key >= '0' && key <= '9') || key == backspaceKey;
}

std::string monthOf(std::string_view typed, const Date& today) {
    if (lengthOf(typed) < 3) {
        return formatNumber(today.month, "00");
    }
    return formatText(midOf(typed, 3, 2), "00");
}

// A year of one to three characters comes behind "2" and zeros: 5 is 2005.
std::string yearOf(std::string_view typed, const Date& today) {
    if (lengthOf(typed) < 5) {
        return formatNumber(today.year, "0000");
    }
    const std::string_view year = midOf(typed, 5, 4);
    const std::size_t length = lengthOf(year);
    if (length >= 4) {
        return formatText(year, "0000");
    }
    std::string text("2");
    return text.append(3 - length, '0').append(year);
}

FieldResult refusedQuantity(std::string_view message) {
    return {.text = "0,000",
            .box = Box{.text = std::string(message),
                       .icon = BoxIcon::Information,
                       .title = std::string(box_title::attention)},
            .refocus = true};
}

}  // namespace

std::int16_t SoNumeroVirgula(std::int16_t& key, Machine& machine) {
    return filter(key, isIntegerKey(key) || key == commaKey, machine);
}

std::int16_t SoNumeroInteiro(std::int16_t& key, Machine& machine) {
    return filter(key, isIntegerKey(key), machine);
}

bool takes(KeyFilter filter, char32_t character, Machine& machine) {
    if (filter == KeyFilter::None) {
        return true;
    }
    constexpr char32_t highest = 0x7FFF;  // of a key code
    const bool isCode = character <= highest && character != backspaceKey;
    auto key = static_cast<std::int16_t>(isCode ? character : 0);
    return (filter == KeyFilter::Decimal ? SoNumeroVirgula(key, machine)
                                         : SoNumeroInteiro(key, machine)) != 0;
}

std::optional<std::string> takenOf(KeyFilter filter, std::string_view pasted, Machine& machine) {
    if (filter == KeyFilter::None) {
        return std::string(pasted);
    }
    constexpr std::string_view punctuation = " ./-";
    std::string taken;
    for (const char character : pasted) {
        const bool isDigit = character >= '0' && character <= '9';
        if (isDigit || (character == commaKey && filter == KeyFilter::Decimal)) {
            taken += character;
        } else if (character != commaKey && punctuation.find(character) == std::string::npos) {
            machine.beep();
            return std::nullopt;
        }
    }
    return taken;
}

std::string dateOnEnter(std::string_view text) {
    return replaceAll(text, "/", "");
}

std::string dateOnLeave(std::string_view text, const Date& today) {
    if (text.empty()) {
        return {};
    }
    std::string date = formatText(leftOf(text, 2), "00");
    date.append("/").append(monthOf(text, today));
    date.append("/").append(yearOf(text, today));
    return date;
}

FieldResult testedDateOnLeave(std::string_view text, const Date& today) {
    FieldResult result{.text = dateOnLeave(text, today), .box = {}};
    if (!result.text.empty() && !parseStrictDate(result.text)) {
        result = {.text = "",
                  .box = Box{.text = "Data Inválida.      ",
                             .icon = BoxIcon::Critical,
                             .title = std::string(box_title::notice)},
                  .refocus = true,
                  .textUnderBox = std::move(result.text)};
    }
    return result;
}

FieldResult quantityOnLeave(std::string_view text, const QuantityMessages& messages) {
    constexpr double firstTooLarge = 10000000;
    if (!isNumeric(text)) {
        return refusedQuantity(messages.notNumeric);
    }
    if (readPoint(text) >= firstTooLarge) {
        return refusedQuantity(messages.tooLarge);
    }
    return {.text = formatText(text, "###,###,###,##0.000"), .box = {}};
}

FieldResult moneyOnLeave(std::string_view text) {
    constexpr double largest = 9999999999999.99;
    if (trimBlanks(text).empty()) {
        return {.text = std::string(text), .box = {}};
    }
    if (readComma(text) > largest) {
        return {.text = std::string(text),
                .box = Box{.text = "O valor máximo permitido é de R$ 9.999.999.999.999,99",
                           .icon = BoxIcon::Exclamation},
                .refocus = true};
    }
    return {.text = formatText(text, "##,##0.00"), .box = {}};
}

}  // namespace tarn
