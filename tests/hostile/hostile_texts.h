// Texts that nobody means well with, each beside letters of the same number. What is done
// with the one must be done with the other.
#pragma once

#include <array>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>

#include "runtime/text.h"

namespace tarn::test {

struct HostileText {
    HostileText(const char* called, std::string ownPart, std::string characters);

    const char* name;
    std::string sign;     // a part of it that nothing else has
    std::string text;     // UTF-8, of characters that XML can carry; no blanks, "&" or "\"
    std::string letters;  // as many; the stroke stays, at which dates are parted
    std::string xml;      // the text as the value of an attribute
};

inline void PrintTo(const HostileText& hostile, std::ostream* out) {
    *out << hostile.name;
}

inline std::string repeatedTo(std::size_t characters, std::string_view piece) {
    std::string text;
    for (std::size_t length = 0; length < characters; length += lengthOf(piece)) {
        text += piece;
    }
    return std::string(leftOf(text, characters));
}

inline const std::array<HostileText, 4>& hostileTexts() {
    // C1 controls, of which printers take some for commands: next line, CSI.
    constexpr std::string_view controls = "A\t\r\n\x7F\xC2\x80\xC2\x85\xC2\x9B\xC2\xADZ";
    // Right-to-left override, right-to-left mark, isolate, byte order mark, line separator.
    constexpr std::string_view marks =
        "A\xE2\x80\xAE\xE2\x80\x8F\xE2\x81\xA6\xEF\xBB\xBF\xE2\x80\xA8Z";
    constexpr std::string_view markup = "<b>A</b><img/src='x'>\"<!--]]>%s%n{0}";
    static const std::array<HostileText, 4> all{
        {{"markup", "<b>", std::string(markup)},
         {"controls", "\xC2\x9B", std::string(controls)},
         {"marks", "\xE2\x80\xAE", std::string(marks)},
         {"long", "<b>", repeatedTo(10000, std::string(markup).append(controls).append(marks))}}};
    return all;
}

inline HostileText::HostileText(const char* called, std::string ownPart, std::string characters)
    : name(called), sign(std::move(ownPart)), text(std::move(characters)) {
    for (std::size_t i = 0; i < text.size();) {
        const Utf8Char character = utf8At(text, i);
        letters += text[i] == '/' ? '/' : 'x';
        if (std::string_view("<>\"'").find(text[i]) == std::string_view::npos && text[i] > ' ' &&
            text[i] < 0x7F) {
            xml += text[i];
        } else {
            xml += "&#" + std::to_string(static_cast<unsigned>(character.code)) + ";";
        }
        i += character.bytes;
    }
}

}  // namespace tarn::test
