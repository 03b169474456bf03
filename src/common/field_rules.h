// The behaviours that turn a plain text field into a date, quantity, money or
// number field, apart from any widget.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/message_boxes.h"
#include "runtime/dates.h"

namespace tarn {

class Machine;

// Key filters: `key` (a character code) becomes 0, with a beep, when it may not
// pass. Return the code as it leaves.
std::int16_t SoNumeroVirgula(std::int16_t& key, Machine& machine);  // digits, backspace, comma
std::int16_t SoNumeroInteiro(std::int16_t& key, Machine& machine);  // digits, backspace

// What a field admits: any character, digits and the comma, digits.
enum class KeyFilter { None, Decimal, Integer };

// One character, however it was brought; a refused one beeps. A backspace is a key and no
// character of a text.
bool takes(KeyFilter filter, char32_t character, Machine& machine);
// What of a pasted or dropped text goes in: all but its blanks, points, slashes, hyphens and,
// where the field takes none, commas. Nothing, with a beep, when more would have to be left out.
std::optional<std::string> takenOf(KeyFilter filter, std::string_view pasted, Machine& machine);

// What a field shows after it was left, the box to show first, if any, and what it shows
// meanwhile, if it isn't what was typed. With `refocus` the focus goes back to the field
// after the box.
struct FieldResult {
    std::string text;
    std::optional<Box> box;
    bool refocus = false;
    std::optional<std::string> textUnderBox = std::nullopt;
};

// Date fields: 8 characters without slashes while edited, 10 with them outside.
inline constexpr int dateLengthEditing = 8;
inline constexpr int dateLengthShown = 10;
std::string dateOnEnter(std::string_view text);
std::string dateOnLeave(std::string_view text, const Date& today);
// txtDtDeposito's own test of what dateOnLeave made.
FieldResult testedDateOnLeave(std::string_view text, const Date& today);

// Quantity fields of three decimals; the two messages differ by field.
struct QuantityMessages {
    std::string_view notNumeric;
    std::string_view tooLarge;
};
inline constexpr QuantityMessages messagesQtde{"Quantidade inválido.     ",
                                               "Quantidade máxima permitida é 9.999.999,999 "};
inline constexpr QuantityMessages grossWeightMessages{
    "Peso Bruto inválido.     ", "Peso Bruto máximo permitido é 9.999.999,999 "};
inline constexpr QuantityMessages netWeightMessages{
    "Peso Líquido inválido.     ", "Peso Líquido máximo permitido é 9.999.999,999 "};
FieldResult quantityOnLeave(std::string_view text, const QuantityMessages& messages);

// Money field; raises TypeMismatch for a text that is no number.
FieldResult moneyOnLeave(std::string_view text);

}  // namespace tarn
