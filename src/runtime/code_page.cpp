#include "runtime/code_page.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "runtime/ascii.h"
#include "runtime/text.h"

namespace tarn {

namespace {

using UpperHalf = std::array<char16_t, 128>;  // the characters of bytes 128 to 255

constexpr UpperHalf page850 = {
    0x00C7, 0x00FC, 0x00E9, 0x00E2, 0x00E4, 0x00E0, 0x00E5, 0x00E7, 0x00EA, 0x00EB, 0x00E8, 0x00EF,
    0x00EE, 0x00EC, 0x00C4, 0x00C5, 0x00C9, 0x00E6, 0x00C6, 0x00F4, 0x00F6, 0x00F2, 0x00FB, 0x00F9,
    0x00FF, 0x00D6, 0x00DC, 0x00F8, 0x00A3, 0x00D8, 0x00D7, 0x0192, 0x00E1, 0x00ED, 0x00F3, 0x00FA,
    0x00F1, 0x00D1, 0x00AA, 0x00BA, 0x00BF, 0x00AE, 0x00AC, 0x00BD, 0x00BC, 0x00A1, 0x00AB, 0x00BB,
    0x2591, 0x2592, 0x2593, 0x2502, 0x2524, 0x00C1, 0x00C2, 0x00C0, 0x00A9, 0x2563, 0x2551, 0x2557,
    0x255D, 0x00A2, 0x00A5, 0x2510, 0x2514, 0x2534, 0x252C, 0x251C, 0x2500, 0x253C, 0x00E3, 0x00C3,
    0x255A, 0x2554, 0x2569, 0x2566, 0x2560, 0x2550, 0x256C, 0x00A4, 0x00F0, 0x00D0, 0x00CA, 0x00CB,
    0x00C8, 0x0131, 0x00CD, 0x00CE, 0x00CF, 0x2518, 0x250C, 0x2588, 0x2584, 0x00A6, 0x00CC, 0x2580,
    0x00D3, 0x00DF, 0x00D4, 0x00D2, 0x00F5, 0x00D5, 0x00B5, 0x00FE, 0x00DE, 0x00DA, 0x00DB, 0x00D9,
    0x00FD, 0x00DD, 0x00AF, 0x00B4, 0x00AD, 0x00B1, 0x2017, 0x00BE, 0x00B6, 0x00A7, 0x00F7, 0x00B8,
    0x00B0, 0x00A8, 0x00B7, 0x00B9, 0x00B3, 0x00B2, 0x25A0, 0x00A0,
};

constexpr UpperHalf page860 = {
    0x00C7, 0x00FC, 0x00E9, 0x00E2, 0x00E3, 0x00E0, 0x00C1, 0x00E7, 0x00EA, 0x00CA, 0x00E8, 0x00CD,
    0x00D4, 0x00EC, 0x00C3, 0x00C2, 0x00C9, 0x00C0, 0x00C8, 0x00F4, 0x00F5, 0x00F2, 0x00DA, 0x00F9,
    0x00CC, 0x00D5, 0x00DC, 0x00A2, 0x00A3, 0x00D9, 0x20A7, 0x00D3, 0x00E1, 0x00ED, 0x00F3, 0x00FA,
    0x00F1, 0x00D1, 0x00AA, 0x00BA, 0x00BF, 0x00D2, 0x00AC, 0x00BD, 0x00BC, 0x00A1, 0x00AB, 0x00BB,
    0x2591, 0x2592, 0x2593, 0x2502, 0x2524, 0x2561, 0x2562, 0x2556, 0x2555, 0x2563, 0x2551, 0x2557,
    0x255D, 0x255C, 0x255B, 0x2510, 0x2514, 0x2534, 0x252C, 0x251C, 0x2500, 0x253C, 0x255E, 0x255F,
    0x255A, 0x2554, 0x2569, 0x2566, 0x2560, 0x2550, 0x256C, 0x2567, 0x2568, 0x2564, 0x2565, 0x2559,
    0x2558, 0x2552, 0x2553, 0x256B, 0x256A, 0x2518, 0x250C, 0x2588, 0x2584, 0x258C, 0x2590, 0x2580,
    0x03B1, 0x00DF, 0x0393, 0x03C0, 0x03A3, 0x03C3, 0x00B5, 0x03C4, 0x03A6, 0x0398, 0x03A9, 0x03B4,
    0x221E, 0x03C6, 0x03B5, 0x2229, 0x2261, 0x00B1, 0x2265, 0x2264, 0x2320, 0x2321, 0x00F7, 0x2248,
    0x00B0, 0x2219, 0x00B7, 0x221A, 0x207F, 0x00B2, 0x25A0, 0x00A0,
};

// Bytes 80 to 9F of windows-1252; the five it leaves undefined stand for themselves.
constexpr std::array<char16_t, 32> block1252 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

// What goes out for the characters of that block, in the same order; 0 for the
// undefined ones, which no page has.
constexpr std::string_view lookAlikes("E\0'f\".++^%S<O\0Z\0\0''\"\"*--~Ts>o\0zY", 32);

char byteOf(const UpperHalf& half, char32_t code) {
    const auto* found = std::find(half.begin(), half.end(), code);
    return found == half.end() ? '?' : static_cast<char>(128 + (found - half.begin()));
}

// The byte of the windows-1252 block 80-9F that holds the character; 0 for none.
unsigned char blockByteOf(char32_t code) {
    if (code <= 0xFF) {  // windows-1252 has no other letter of these in the block
        return 0;
    }
    const auto* found = std::find(block1252.begin(), block1252.end(), code);
    return found == block1252.end()
               ? static_cast<unsigned char>(0)
               : static_cast<unsigned char>(0x80 + (found - block1252.begin()));
}

char pageByte(char32_t code, CodePage page) {
    switch (page) {
        case CodePage::Page850:
            return byteOf(page850, code);
        case CodePage::Page860:
            return byteOf(page860, code);
        case CodePage::Page1252:
            break;
    }
    return code >= 0xA0 && code <= 0xFF ? static_cast<char>(code) : '?';
}

char printerByte(char32_t code, CodePage page) {
    constexpr char32_t noBreakSpace = 0xA0;
    constexpr char32_t softHyphen = 0xAD;
    if (code == noBreakSpace) {
        return ' ';
    }
    if (code == softHyphen) {
        return '-';
    }
    if (const unsigned char block = blockByteOf(code); block != 0) {
        return lookAlikes[block - 0x80U];
    }
    return pageByte(code, page);
}

char windowsByte(char32_t code) {
    if (code >= 0xA0 && code <= 0xFF) {
        return static_cast<char>(code);
    }
    const unsigned char block = blockByteOf(code);
    return block == 0 ? '?' : static_cast<char>(block);
}

// Appends one byte a character: those below 128 as they are, the others by `byteOfCode`.
template <typename ByteOf>
void appendBytes(std::string& out, std::string_view utf8, ByteOf byteOfCode) {
    std::size_t position = 0;
    while (position < utf8.size()) {
        std::size_t end = position + asciiRun(utf8.substr(position));
        out.append(utf8, position, end - position);
        if (end < utf8.size()) {
            const Utf8Char c = utf8At(utf8, end);
            out.push_back(byteOfCode(c.code));
            end += c.bytes;
        }
        position = end;
    }
}

}  // namespace

std::optional<CodePage> codePageByNumber(int number) {
    switch (number) {
        case 1252:
            return CodePage::Page1252;
        case 850:
            return CodePage::Page850;
        case 860:
            return CodePage::Page860;
        default:
            return std::nullopt;
    }
}

void appendPrinterBytes(std::string& out, std::string_view utf8, CodePage page) {
    appendBytes(out, utf8, [page](char32_t code) { return printerByte(code, page); });
}

char16_t characterOf(unsigned char byte, CodePage page) {
    if (byte < 0x80 || page == CodePage::Page1252) {
        return byte;
    }
    return (page == CodePage::Page850 ? page850 : page860).at(byte - 0x80U);
}

std::string toWindows1252(std::string_view utf8) {
    std::string out;
    out.reserve(utf8.size());
    appendBytes(out, utf8, windowsByte);
    return out;
}

std::string fromWindows1252(std::string_view bytes) {
    std::string out;
    out.reserve(bytes.size());
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        appendUtf8(out, byte >= 0x80 && byte < 0xA0 ? block1252[byte - 0x80U] : byte);
    }
    return out;
}

}  // namespace tarn
