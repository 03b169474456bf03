#include "gateway/windows_1252.h"

#include <libxml/encoding.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "runtime/code_page.h"

namespace tarn {
namespace {

// What libxml2 expects of a converter that met a byte without a character, or has no room.
constexpr int noSuchCharacter = -2;
constexpr int noRoom = -1;

constexpr std::string_view undefinedBytes = "\x81\x8D\x8F\x90\x9D";

std::array<std::string, 128> upperHalf() {
    std::array<std::string, 128> characters;
    for (std::size_t i = 0; i < characters.size(); ++i) {
        const char byte = static_cast<char>(128 + i);
        if (undefinedBytes.find(byte) == std::string_view::npos) {
            characters.at(i) = fromWindows1252({&byte, 1});
        }
    }
    return characters;
}

// Both lengths come as what there is and go as what was used of it; the result is the
// number of bytes written, or why not all were read.
int toUtf8(unsigned char* out, int* outLength, const unsigned char* in, int* inLength) {
    static const std::array<std::string, 128> characters = upperHalf();
    const unsigned char* const inEnd = in + *inLength;
    const unsigned char* const outEnd = out + *outLength;
    const unsigned char* read = in;
    unsigned char* written = out;
    int result = 0;
    for (; read != inEnd && result == 0; ++read) {
        const bool isAscii = *read < 128;
        const std::string_view character =
            isAscii ? std::string_view(reinterpret_cast<const char*>(read), 1)
                    : std::string_view(characters.at(*read - 128U));
        if (character.empty()) {
            result = noSuchCharacter;
        } else if (outEnd - written < static_cast<std::ptrdiff_t>(character.size())) {
            result = noRoom;
        }
        if (result != 0) {
            break;
        }
        written = std::ranges::copy(character, written).out;
    }
    *inLength = static_cast<int>(read - in);
    *outLength = static_cast<int>(written - out);
    return result == 0 ? *outLength : result;
}

std::size_t sequenceLength(unsigned char first) {
    constexpr unsigned char two = 0xC0;
    constexpr unsigned char three = 0xE0;
    constexpr unsigned char four = 0xF0;
    return first < two ? 1 : first < three ? 2 : first < four ? 3 : 4;
}

// The way back, for the copy of an answer that is kept as it was declared. A character that
// the page lacks becomes a reference, which libxml2 writes when it is told.
int fromUtf8(unsigned char* out, int* outLength, const unsigned char* in, int* inLength) {
    const std::string_view text(reinterpret_cast<const char*>(in),
                                in == nullptr ? 0 : static_cast<std::size_t>(*inLength));
    std::size_t read = 0;
    int written = 0;
    int result = 0;
    while (read < text.size()) {
        const std::size_t length = sequenceLength(static_cast<unsigned char>(text[read]));
        const std::string_view one = text.substr(read, length);
        if (one.size() < length) {
            break;  // the rest of it comes with the next call
        }
        const std::string byte = toWindows1252(one);
        if (byte == "?" && one != "?") {
            result = noSuchCharacter;
        } else if (written == *outLength) {
            result = noRoom;
        }
        if (result != 0) {
            break;
        }
        out[written++] = static_cast<unsigned char>(byte.front());
        read += one.size();
    }
    *inLength = static_cast<int>(read);
    *outLength = written;
    return result == 0 ? written : result;
}

}  // namespace

void teachWindows1252() {
    // libxml2 keeps it for the rest of the program.
    static const bool taught = [] {
        for (const char* name : {"WINDOWS-1252", "CP1252"}) {
            xmlNewCharEncodingHandler(name, toUtf8, fromUtf8);
        }
        return true;
    }();
    static_cast<void>(taught);
}

}  // namespace tarn
