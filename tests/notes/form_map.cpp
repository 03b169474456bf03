#include "tests/notes/form_map.h"

#include <algorithm>
#include <regex>
#include <stdexcept>

namespace tarn::test {

namespace {

MapField fieldOf(const std::string& text) {
    static const std::regex shape(R"(\s*(.+) @(\d+):(\d+|-)(R?)\s*)");
    std::smatch match;
    if (!std::regex_match(text, match, shape)) {
        throw std::runtime_error("unreadable field: " + text);
    }
    MapField field;
    field.source = match[1];
    field.column = std::stoi(match[2]);
    field.width = match[3] == "-" ? -1 : std::stoi(match[3]);
    field.right = match[4] == "R";
    return field;
}

std::string bytesOf(const std::string& hex) {
    std::string bytes;
    for (std::size_t i = 0; i < hex.size(); i += 3) {
        bytes += static_cast<char>(std::stoi(hex.substr(i, 2), nullptr, 16));
    }
    return bytes;
}

}  // namespace

bool MapRow::shows(const std::string& source) const {
    return std::any_of(fields.begin(), fields.end(), [&](const MapField& field) {
        return field.source == source || field.source.find(" and " + source) != std::string::npos ||
               field.source.starts_with(source + " and ");
    });
}

MapRow readRow(const std::string& line) {
    static const std::regex shape(R"((\d+) \+(\d+) (.+))");
    std::smatch match;
    if (!std::regex_match(line, match, shape)) {
        throw std::runtime_error("unreadable row: " + line);
    }
    MapRow row;
    row.line = std::stoi(match[1]);
    row.advance = std::stoi(match[2]);
    const std::string content = match[3];
    if (content.starts_with("bytes ")) {
        row.control = bytesOf(content.substr(6));
        return row;
    }
    const std::string separator = " ; ";
    for (std::size_t at = 0; at != std::string::npos;) {
        const std::size_t end = content.find(separator, at);
        row.fields.push_back(fieldOf(content.substr(at, end - at)));
        at = end == std::string::npos ? end : end + separator.size();
    }
    return row;
}

}  // namespace tarn::test
