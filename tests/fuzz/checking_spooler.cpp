#include "tests/fuzz/checking_spooler.h"

#include <algorithm>
#include <array>

namespace tarn::fuzz {

namespace {

using namespace std::string_view_literals;

// The only commands that a document sends, each in a write of its own.
constexpr std::array commands{" \x0F"sv,
                              " \x12"sv,
                              " \x1B\x0F\x0F"sv,
                              " \x1B\x17"sv,
                              " \x0F\x1B\x1BG"sv,
                              " \x0F\x1B\x1BM"sv,
                              " \x0F\x1BM"sv,
                              " \x0F\x1BG"sv,
                              " \x1B#3"sv,
                              " \x1B"
                              "A\x06"sv,
                              " \x1B"
                              "2"sv};
constexpr std::size_t longestCommand = 6;

// A byte that a printer of these forms takes for a command, or that has no shape.
bool commandsPrinter(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte < 0x20 || (byte >= 0x7F && byte <= 0xA0) || byte == 0xAD;
}

}  // namespace

std::size_t CheckingSpooler::write(std::string_view text) {
    if (state_ != Page) {
        broken("a write outside a page");
    }
    bytes += text.size();
    if (text.size() <= longestCommand &&
        std::find(commands.begin(), commands.end(), text) != commands.end()) {
        return text.size();
    }
    if (!text.starts_with(' ')) {
        broken("a call without the blank of its column");
    }
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') {
            ++lineEnds;
            ++i;
        } else if (commandsPrinter(text[i])) {
            broken("byte " + std::to_string(static_cast<unsigned char>(text[i])) + " from a value");
        }
    }
    return text.size();
}

}  // namespace tarn::fuzz
