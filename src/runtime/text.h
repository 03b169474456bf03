// Texts are UTF-8; lengths, positions and cuts count characters, never bytes.
// A malformed byte counts as one character.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

std::size_t lengthOf(std::string_view text);
std::string_view leftOf(std::string_view text, std::size_t count);
std::string_view rightOf(std::string_view text, std::size_t count);
// `count` characters from position `start`, which counts from 1; less where the
// text ends before.
std::string_view midOf(std::string_view text, std::size_t start, std::size_t count);

std::string_view trimBlanks(std::string_view text);  // blanks (32) off both ends, nothing else
std::string upperCase(std::string_view text);        // also the accented letters of windows-1252
std::string trimmedUpperCase(std::string_view text);
std::string asciiUpper(std::string_view text);
std::string asciiLower(std::string_view text);
std::string replaceAll(std::string_view text, std::string_view from, std::string_view to);

// Each control character (below 32, and 127) turned into one blank, so that no
// value moves a line or commands a printer.
std::string blankControls(std::string_view text);
void appendBlankingControls(std::string& out, std::string_view text);

// For a terminal, which takes control characters for commands: all but line ends and tabs,
// those from 0x80 to 0x9F too, and malformed bytes are "?".
std::string forTerminal(std::string_view text);

// A value as part of a line of a text file: backslash, tab, CR and LF as \\, \t, \r, \n.
std::string escapedLine(std::string_view text);

// The pieces between separators, empty ones too: always at least one. They live as
// long as the text.
std::vector<std::string_view> split(std::string_view text, char separator);

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
