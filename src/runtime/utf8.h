// Walking UTF-8 text one character at a time.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tarn {

// One character of a text: its code point and how many bytes it takes.
struct Utf8Char {
    char32_t code = 0;
    std::size_t bytes = 1;
};

inline constexpr char32_t malformedByte = 0xFFFD;  // code of a byte that is no UTF-8

// The character at `position`, which must lie inside the text. A malformed byte is
// one character, `malformedByte`.
Utf8Char utf8At(std::string_view text, std::size_t position);

void appendUtf8(std::string& out, char32_t code);

}  // namespace tarn
