// Conversions between numbers and text. They never look at the machine's locale.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tarn {

// Comma-reading conversion (decision D3): blanks around, an optional sign, digits in which
// points may be anywhere after the first one (dropped), optionally a comma and
// more digits, at least one digit in all. Nothing else is a number.
std::optional<double> parseComma(std::string_view text);
bool isNumeric(std::string_view text);

// The same; raises RuntimeError TypeMismatch for what is no number.
double readComma(std::string_view text);

// Point-reading conversion (decision D4): blanks, tabs and line feeds are skipped everywhere;
// sign, digits, point, digits, exponent (e, E, d, D); stops at the first other
// character. No number at all reads as 0. Never fails.
double readPoint(std::string_view text);

// General conversion of a number to text: up to 15 significant digits, a decimal
// comma only when there is a fraction, no grouping, no exponent. 0.5 is "0,5".
std::string numberText(double value);

// The comma reading, rounded half to even to an integer of the width named.
// Raises TypeMismatch for what is no number, Overflow for what doesn't fit.
std::int16_t readInt16(std::string_view text);
std::int32_t readInt32(std::string_view text);

// "." turned into ",": how an amount that came over the wire becomes readable
// for the comma-reading conversion.
std::string pointToComma(std::string_view text);

}  // namespace tarn
