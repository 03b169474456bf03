#include "gateway/answer_limits.h"

#include <algorithm>
#include <array>
#include <string>

#include "runtime/text.h"

namespace tarn {
namespace {

using namespace std::string_view_literals;

constexpr std::size_t none = std::string_view::npos;

enum class Units { Bytes, HighFirst, LowFirst, Wider };

// By the byte order mark or the "<" that an answer begins with.
Units unitsOf(std::string_view answer) {
    const std::string_view four = answer.substr(0, 4);
    if (std::ranges::count(four, '\0') > 2) {
        return Units::Wider;
    }
    if (four.starts_with("\xFE\xFF"sv) || four.starts_with("\0<"sv)) {
        return Units::HighFirst;
    }
    if (four.starts_with("\xFF\xFE"sv) || four.starts_with("<\0"sv)) {
        return Units::LowFirst;
    }
    return Units::Bytes;
}

// UTF-16 with "x" for every unit beyond ASCII.
std::string narrowed(std::string_view answer, bool highFirst) {
    std::string letters;
    letters.reserve(answer.size() / 2);
    for (std::size_t i = 0; i + 1 < answer.size(); i += 2) {
        const char high = answer[highFirst ? i : i + 1];
        const char low = answer[highFirst ? i + 1 : i];
        letters += high == 0 && static_cast<unsigned char>(low) < 0x80 ? low : 'x';
    }
    return letters;
}

// The place behind the next `end`.
std::size_t behind(std::string_view letters, std::string_view end, std::size_t from) {
    const std::size_t found = letters.find(end, from);
    return found == none ? none : found + end.size();
}

struct Tag {
    std::size_t end = none;  // the place behind it
    std::size_t attributes = 0;
};

Tag tagAt(std::string_view letters, std::size_t at) {
    Tag tag;
    while (at < letters.size() && letters[at] != '>') {
        const char letter = letters[at];
        if (letter == '"' || letter == '\'') {
            at = letters.find(letter, at + 1);
            if (at == none) {
                return tag;
            }
        } else if (letter == '=') {
            ++tag.attributes;
        }
        ++at;
    }
    tag.end = at;
    return tag;
}

bool isCrowded(std::string_view letters) {
    constexpr std::string_view comment = "<!--";
    constexpr std::string_view section = "<![CDATA[";
    constexpr std::string_view instruction = "<?";
    std::size_t at = letters.find('<');
    while (at != none) {
        const std::string_view markup = letters.substr(at, section.size());
        if (markup.starts_with(comment)) {
            at = behind(letters, "-->", at + comment.size());
        } else if (markup == section) {
            at = behind(letters, "]]>", at + section.size());
        } else if (markup.starts_with(instruction)) {
            at = behind(letters, "?>", at + instruction.size());
        } else {
            const Tag tag = tagAt(letters, at + 1);
            if (tag.attributes > mostAttributesOfElement) {
                return true;
            }
            at = tag.end;
        }
        at = at == none ? none : letters.find('<', at);
    }
    return false;
}

// Of an encoding's name, in capitals: whether it is `family` and a number.
bool isOf(std::string_view family, std::string_view name) {
    const std::string_view number = name.substr(std::min(family.size(), name.size()));
    return name.starts_with(family) && !number.empty() && number.size() <= 2 &&
           number.find_first_not_of("0123456789") == none;
}

bool keepsAscii(std::string_view name) {
    constexpr std::array families{"ISO-8859-"sv, "ISO_8859-"sv, "ISO8859-"sv, "WINDOWS-125"sv,
                                  "CP125"sv};
    constexpr std::array others{"UTF-8"sv, "UTF8"sv,  "US-ASCII"sv, "ASCII"sv, "LATIN1"sv,
                                "CP850"sv, "CP860"sv, "IBM850"sv,   "IBM860"sv};
    return std::ranges::find(others, name) != others.end() ||
           std::ranges::any_of(families, [name](auto family) { return isOf(family, name); });
}

}  // namespace

bool hasCrowdedElement(std::string_view answer) {
    switch (unitsOf(answer)) {
        case Units::HighFirst:
            return isCrowded(narrowed(answer, true));
        case Units::LowFirst:
            return isCrowded(narrowed(answer, false));
        default:
            return isCrowded(answer);
    }
}

bool mayBeIn(std::string_view encoding, std::string_view answer) {
    const std::string name = asciiUpper(encoding);
    switch (unitsOf(answer)) {
        case Units::Bytes:
            return name.empty() || keepsAscii(name);
        case Units::Wider:
            return false;
        default:
            return name.empty() || name == "UTF-16" || name == "UTF-16LE" || name == "UTF-16BE";
    }
}

}  // namespace tarn
