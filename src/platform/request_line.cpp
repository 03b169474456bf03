#include "platform/request_line.h"

#include "runtime/code_page.h"

namespace tarn {
namespace {

constexpr std::string_view hexDigits = "0123456789ABCDEF";

bool mayStand(unsigned char byte) {
    constexpr std::string_view refused = "\"<>#\\^`{|}";
    return byte > 32 && byte < 127 && refused.find(static_cast<char>(byte)) == refused.npos;
}

}  // namespace

std::string requestLine(std::string_view address) {
    std::string line;
    line.reserve(address.size());
    for (const char c : toWindows1252(address)) {
        const auto byte = static_cast<unsigned char>(c);
        if (mayStand(byte)) {
            line += c;
        } else {
            line += {'%', hexDigits[byte >> 4U], hexDigits[byte & 15U]};
        }
    }
    return line;
}

}  // namespace tarn
