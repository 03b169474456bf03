// The 8-bit pages of printers, and windows-1252 as addresses use it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarn {

// Printers' pages. Page1252 is windows-1252 without its block 80-9F, which
// these printers take for control codes.
enum class CodePage { Page1252, Page850, Page860 };

std::optional<CodePage> codePageByNumber(int number);  // 1252, 850, 860

// One byte a character. Characters of windows-1252's 80-9F block, U+00A0 and
// U+00AD go out as a one-character look-alike, any other character that the page
// lacks as "?". Bytes below 128 go as they are.
void appendPrinterBytes(std::string& out, std::string_view utf8, CodePage page);

// What the page's byte stands for. Bytes below 128, and all of Page1252, stand for the
// character of their number.
char16_t characterOf(unsigned char byte, CodePage page);

// Full windows-1252, one byte a character, "?" for a character it lacks.
std::string toWindows1252(std::string_view utf8);
std::string fromWindows1252(std::string_view bytes);

}  // namespace tarn
