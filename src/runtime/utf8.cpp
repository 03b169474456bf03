#include "runtime/utf8.h"

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

}  // namespace tarn
