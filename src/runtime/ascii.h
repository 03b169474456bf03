// Recognises ASCII eight bytes at a time: almost everything that is printed is ASCII. And
// its digits, and its letters without their case.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace tarn {

namespace ascii {

inline constexpr std::uint64_t everyByte = 0x0101010101010101U;
inline constexpr std::uint64_t highBits = 0x80 * everyByte;

template <typename Word>
std::uint64_t load(const char* from) {
    Word word = 0;
    std::memcpy(&word, from, sizeof word);
    return word;
}

// Whether every byte lies from blank to "~". A byte below the blank borrows, DEL and
// those above carry into its high bit.
constexpr bool allPrintable(std::uint64_t eight) {
    return ((eight | (eight - ' ' * everyByte) | (eight + everyByte)) & highBits) == 0;
}

}  // namespace ascii

// Whether the text holds nothing but characters from blank to "~", one byte each.
inline bool isPlain(std::string_view text) {
    using Half = std::uint32_t;
    const char* from = text.data();
    std::size_t left = text.size();
    for (; left > sizeof(std::uint64_t); left -= sizeof(std::uint64_t)) {
        if (!ascii::allPrintable(ascii::load<std::uint64_t>(from))) {
            return false;
        }
        from += sizeof(std::uint64_t);
    }
    if (left >= sizeof(Half)) {  // the two halves may overlap
        const std::uint64_t first = ascii::load<Half>(from);
        const std::uint64_t last = ascii::load<Half>(from + left - sizeof(Half));
        return ascii::allPrintable(first << 32U | last);
    }
    for (; left > 0; --left, ++from) {
        if (*from < ' ' || *from > '~') {
            return false;
        }
    }
    return true;
}

// Length of the run of bytes below 128 that the text begins with.
inline std::size_t asciiRun(std::string_view text) {
    std::size_t run = 0;
    while (run + sizeof(std::uint64_t) <= text.size() &&
           (ascii::load<std::uint64_t>(text.data() + run) & ascii::highBits) == 0) {
        run += sizeof(std::uint64_t);
    }
    while (run < text.size() && static_cast<unsigned char>(text[run]) < 0x80) {
        ++run;
    }
    return run;
}

constexpr bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

inline char asciiUpper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

inline bool sameIgnoringCase(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return asciiUpper(x) == asciiUpper(y); });
}

}  // namespace tarn
