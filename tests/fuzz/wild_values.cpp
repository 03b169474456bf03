#include "tests/fuzz/wild_values.h"

#include <algorithm>
#include <array>
#include <cctype>

#include "tests/support/xml_text.h"

namespace tarn::fuzz {

namespace {

using namespace std::string_view_literals;

constexpr std::array numbers{"0"sv,
                             "1"sv,
                             "-1"sv,
                             ""sv,
                             " "sv,
                             "0.00"sv,
                             "-0.005"sv,
                             "1.005"sv,
                             "12.500"sv,
                             "1234567.891"sv,
                             "99999999999999999999.99"sv,
                             "1e308"sv,
                             "1E5"sv,
                             "-1e-9"sv,
                             "NaN"sv,
                             "inf"sv,
                             "0x10"sv,
                             "1,5"sv,
                             "1.234,56"sv,
                             "1.2.3"sv,
                             "1,2,3"sv,
                             ".5"sv,
                             "5."sv,
                             ","sv,
                             "."sv,
                             "-"sv,
                             "+7"sv,
                             " 7 "sv,
                             "007"sv,
                             "32767"sv,
                             "32768"sv,
                             "-32768"sv,
                             "65536"sv,
                             "2147483648"sv,
                             "9"sv,
                             "4"sv,
                             "6"sv,
                             "12"sv,
                             "13"sv,
                             "2.5"sv,
                             "9.99"sv,
                             "0000000000000000000000000000000000000001"sv,
                             "12345678901234567890123456789"sv,
                             "\xD9\xA3"sv,
                             "1\xC2\xA0"
                             "000"sv,
                             "P"sv,
                             "S"sv,
                             "E"sv,
                             "F"sv,
                             "p"sv};

// Control characters that XML can carry, the block that printers take for
// commands, characters off every page, and malformed ends of words.
constexpr std::array pieces{"A"sv,
                            " "sv,
                            "\n"sv,
                            "\r"sv,
                            "\t"sv,
                            "\x7F"sv,
                            "\xC2\x80"sv,
                            "\xC2\x9B"sv,
                            "\xC2\x92"sv,
                            "\xC2\xA0"sv,
                            "\xC2\xAD"sv,
                            "\xE2\x80\x99"sv,
                            "\xE2\x82\xAC"sv,
                            "\xE2\x80\xA8"sv,
                            "\xF0\x9F\x98\x80"sv,
                            "\xC3\x87"sv,
                            "e\xCC\x81"sv,
                            "\\"sv,
                            " \\\\ "sv,
                            "&"sv,
                            "<"sv,
                            "\""sv,
                            "'"sv,
                            "|"sv,
                            "0"sv,
                            "\xEF\xBB\xBF"sv,
                            "\xEF\xBF\xBD"sv,
                            "OBS.: "sv,
                            "abcdefghijklmnopqrstuvwxyz0123456789"sv};

std::string recased(std::string name, ByteSource& source) {
    const bool upper = source.oneIn(2);
    std::transform(name.begin(), name.end(), name.begin(), [&](unsigned char c) {
        return static_cast<char>(upper ? std::toupper(c) : std::tolower(c));
    });
    return name;
}

void appendWritten(std::string& xml, std::string_view name, std::string_view value) {
    xml.append(" ").append(name).append("=\"").append(test::attributeText(value)).append("\"");
}

}  // namespace

std::string_view wildNumber(ByteSource& source) {
    return source.of(numbers);
}

std::string wildText(ByteSource& source) {
    constexpr std::size_t most = 40;
    std::string text;
    const std::size_t even = source.below(most);
    const std::size_t count = std::max(std::min<std::size_t>(even, 4), even * even / most);
    for (std::size_t i = 0; i < count; ++i) {
        text += source.of(pieces);
    }
    if (source.oneIn(32) && !text.empty()) {
        while (text.size() < 700) {
            text += text;
        }
    }
    return text;
}

Field::Field(std::string_view called, std::string_view holding) : name(called), value(holding) {
    appendWritten(written, name, value);
}

Row rowOf(const test::Attributes& attributes) {
    Row row;
    for (const auto& [name, value] : attributes) {
        row.emplace_back(name, value);
    }
    return row;
}

void appendChanged(std::string& xml, const Field& field, ByteSource& source, std::size_t rarity) {
    if (!source.oneIn(rarity)) {
        xml += field.written;
        return;
    }
    switch (source.below(6)) {
        case 0:
            appendWritten(xml, field.name, wildNumber(source));
            break;
        case 1:
            appendWritten(xml, field.name, wildText(source));
            break;
        case 2:
            break;
        case 3:
            appendWritten(xml, field.name, "");
            break;
        case 4:
            appendWritten(xml, recased(field.name, source), field.value);
            break;
        default:
            appendWritten(xml, field.name, std::string(field.value).append(wildNumber(source)));
            break;
    }
}

void appendChanged(std::string& xml, std::string_view name, const Row& row, ByteSource& source,
                   std::size_t rarity) {
    xml.append("<").append(name);
    for (const Field& field : row) {
        appendChanged(xml, field, source, rarity);
    }
    xml += "/>";
}

}  // namespace tarn::fuzz
