#include "runtime/text.h"

#include <algorithm>

#include "runtime/ascii.h"
#include "runtime/utf8.h"

namespace tarn {

namespace {

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

}  // namespace tarn
