#include "practice/commands/query_text.h"

#include <charconv>

#include "runtime/ascii.h"
#include "runtime/code_page.h"

namespace tarn::practice {
namespace {

int hexDigit(char c) {
    if (c >= '0' && c <= '9') {
        return c - '0';
    }
    if (c >= 'A' && c <= 'F') {
        return c - 'A' + 10;
    }
    return c >= 'a' && c <= 'f' ? c - 'a' + 10 : -1;
}

std::string percentDecoded(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const int high = text[i] == '%' && i + 2 < text.size() ? hexDigit(text[i + 1]) : -1;
        const int low = high >= 0 ? hexDigit(text[i + 2]) : -1;
        if (low >= 0) {
            const auto byte = static_cast<char>(high * 16 + low);
            bytes.push_back(byte == 0 ? ' ' : byte);
            i += 2;
        } else {
            bytes.push_back(text[i]);
        }
    }
    return bytes;
}

std::string decoded(std::string_view text) {
    return fromWindows1252(percentDecoded(text));
}

}  // namespace

Query::Query(std::string_view raw) {
    while (!raw.empty()) {
        const std::size_t end = raw.find('&');
        const std::string_view pair = raw.substr(0, end);
        raw = end == std::string_view::npos ? std::string_view{} : raw.substr(end + 1);
        if (pair.empty()) {
            continue;
        }
        const std::size_t equals = pair.find('=');
        const std::string_view value =
            equals == std::string_view::npos ? std::string_view{} : pair.substr(equals + 1);
        parameters_.emplace_back(decoded(pair.substr(0, equals)), decoded(value));
    }
}

const std::string* Query::find(std::string_view name) const {
    for (const auto& [key, value] : parameters_) {
        if (sameIgnoringCase(key, name)) {
            return &value;
        }
    }
    return nullptr;
}

const std::string& Query::value(std::string_view name) const {
    static const std::string none;
    const std::string* found = find(name);
    return found != nullptr ? *found : none;
}

bool Query::has(std::string_view name) const {
    return find(name) != nullptr;
}

std::string undoBars(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '|') {
            result.push_back(text[i]);
        } else if (i + 1 < text.size() && text[i + 1] == '|') {
            result.push_back('%');
            ++i;
        } else {
            result.push_back('&');
        }
    }
    return result;
}

std::optional<std::int64_t> wholeNumber(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) {
        return std::nullopt;
    }
    text = text.substr(first, text.find_last_not_of(' ') - first + 1);
    if (text.find_first_not_of("0123456789") != std::string_view::npos) {
        return std::nullopt;
    }
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc{} ? std::optional(number) : std::nullopt;
}

}  // namespace tarn::practice
