#include "runtime/text.h"

#include <algorithm>

#include "runtime/ascii.h"

namespace tarn {

namespace {

// Lead bytes by the length of their sequence; the least code refuses overlong forms.
struct Shape {
    std::size_t bytes;
    char32_t leadBits;
    char32_t leastCode;
};

Shape shapeOf(unsigned char lead) {
    if (lead >= 0xC2 && lead <= 0xDF) {
        return {2, lead & 0x1FU, 0x80};
    }
    if (lead >= 0xE0 && lead <= 0xEF) {
        return {3, lead & 0x0FU, 0x800};
    }
    if (lead >= 0xF0 && lead <= 0xF4) {
        return {4, lead & 0x07U, 0x10000};
    }
    return {0, 0, 0};
}

bool isControl(char c) {
    return static_cast<unsigned char>(c) < 32 || c == 127;
}

// Byte position behind the first `count` characters, or the text's end.
std::size_t bytesOf(std::string_view text, std::size_t count) {
    std::size_t position = 0;
    while (count > 0 && position < text.size()) {
        const std::size_t run = asciiRun(text.substr(position, count));
        position += run;
        count -= run;
        if (count > 0 && position < text.size()) {
            position += utf8At(text, position).bytes;
            --count;
        }
    }
    return position;
}

char32_t upperOf(char32_t code) {
    if (code >= U'a' && code <= U'z') {
        return code - 32;
    }
    if (code >= 0xE0 && code <= 0xFE && code != 0xF7) {
        return code - 32;
    }
    switch (code) {
        case 0xFF:
            return 0x178;
        case 0x161:
            return 0x160;
        case 0x153:
            return 0x152;
        case 0x17E:
            return 0x17D;
        default:
            return code;
    }
}

}  // namespace

Utf8Char utf8At(std::string_view text, std::size_t position) {
    const auto lead = static_cast<unsigned char>(text[position]);
    if (lead < 0x80) {
        return {lead, 1};
    }
    const Shape shape = shapeOf(lead);
    if (shape.bytes == 0 || position + shape.bytes > text.size()) {
        return {malformedByte, 1};
    }
    char32_t code = shape.leadBits;
    for (std::size_t i = 1; i < shape.bytes; ++i) {
        const auto next = static_cast<unsigned char>(text[position + i]);
        if ((next & 0xC0U) != 0x80U) {
            return {malformedByte, 1};
        }
        code = (code << 6U) | (next & 0x3FU);
    }
    const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
    if (code < shape.leastCode || code > 0x10FFFF || surrogate) {
        return {malformedByte, 1};
    }
    return {code, shape.bytes};
}

void appendUtf8(std::string& out, char32_t code) {
    const auto tail = [&out](char32_t bits) {
        out.push_back(static_cast<char>(0x80U | (bits & 0x3FU)));
    };
    if (code < 0x80) {
        out.push_back(static_cast<char>(code));
    } else if (code < 0x800) {
        out.push_back(static_cast<char>(0xC0U | (code >> 6U)));
        tail(code);
    } else if (code < 0x10000) {
        out.push_back(static_cast<char>(0xE0U | (code >> 12U)));
        tail(code >> 6U);
        tail(code);
    } else {
        out.push_back(static_cast<char>(0xF0U | (code >> 18U)));
        tail(code >> 12U);
        tail(code >> 6U);
        tail(code);
    }
}

std::size_t lengthOf(std::string_view text) {
    std::size_t count = 0;
    std::size_t position = 0;
    while (position < text.size()) {
        const std::size_t run = asciiRun(text.substr(position));
        position += run;
        count += run;
        if (position < text.size()) {
            position += utf8At(text, position).bytes;
            ++count;
        }
    }
    return count;
}

std::string_view leftOf(std::string_view text, std::size_t count) {
    if (count >= text.size()) {
        return text;
    }
    return text.substr(0, bytesOf(text, count));
}

std::string_view rightOf(std::string_view text, std::size_t count) {
    const std::size_t length = lengthOf(text);
    return count >= length ? text : text.substr(bytesOf(text, length - count));
}

std::string_view midOf(std::string_view text, std::size_t start, std::size_t count) {
    return leftOf(text.substr(bytesOf(text, start > 0 ? start - 1 : 0)), count);
}

std::string_view trimBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string upperCase(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    std::size_t position = 0;
    while (position < text.size()) {
        const Utf8Char c = utf8At(text, position);
        const char32_t upper = upperOf(c.code);
        if (upper == c.code) {
            out.append(text.substr(position, c.bytes));
        } else {
            appendUtf8(out, upper);
        }
        position += c.bytes;
    }
    return out;
}

std::string trimmedUpperCase(std::string_view text) {
    return upperCase(trimBlanks(text));
}

std::string asciiUpper(std::string_view text) {
    std::string out(text);
    std::transform(out.begin(), out.end(), out.begin(), [](char c) { return asciiUpper(c); });
    return out;
}

std::string asciiLower(std::string_view text) {
    std::string out(text);
    std::transform(out.begin(), out.end(), out.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return out;
}

std::string replaceAll(std::string_view text, std::string_view from, std::string_view to) {
    std::string out;
    out.reserve(text.size());
    std::size_t position = 0;
    while (!from.empty()) {
        const std::size_t hit = text.find(from, position);
        if (hit == std::string_view::npos) {
            break;
        }
        out.append(text.substr(position, hit - position));
        out.append(to);
        position = hit + from.size();
    }
    out.append(text.substr(position));
    return out;
}

std::string blankControls(std::string_view text) {
    std::string out;
    appendBlankingControls(out, text);
    return out;
}

void appendBlankingControls(std::string& out, std::string_view text) {
    const std::size_t start = out.size();
    out.append(text);
    if (isPlain(text)) {
        return;
    }
    char* appended = out.data() + start;
    for (std::size_t i = 0; i < text.size(); ++i) {
        appended[i] = isControl(appended[i]) ? ' ' : appended[i];
    }
}

std::string forTerminal(std::string_view text) {
    std::string out;
    for (std::size_t at = 0; at < text.size();) {
        const Utf8Char c = utf8At(text, at);
        const bool stays = c.code == '\n' || c.code == '\t';
        const bool commands = c.code < 0x20 || (c.code >= 0x7F && c.code < 0xA0);
        if (c.code == malformedByte || (commands && !stays)) {
            out += '?';
        } else {
            out += text.substr(at, c.bytes);
        }
        at += c.bytes;
    }
    return out;
}

std::string escapedLine(std::string_view text) {
    std::string out;
    for (const char c : text) {
        switch (c) {
            case '\\':
                out += "\\\\";
                break;
            case '\t':
                out += "\\t";
                break;
            case '\r':
                out += "\\r";
                break;
            case '\n':
                out += "\\n";
                break;
            default:
                out += c;
        }
    }
    return out;
}

std::vector<std::string_view> split(std::string_view text, char separator) {
    std::vector<std::string_view> pieces;
    std::size_t start = 0;
    for (std::size_t end = text.find(separator); end != std::string_view::npos;
         end = text.find(separator, start)) {
        pieces.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    pieces.push_back(text.substr(start));
    return pieces;
}

}  // namespace tarn
