// Texts as they stand in XML.
#pragma once

#include <string>
#include <string_view>

namespace tarn::test {

// In double quotes: a line end or a tab is a reference, or a reader would take it for a blank.
inline std::string attributeText(std::string_view text) {
    std::string out;
    for (std::size_t at = text.find_first_of("&<\"\n\r\t"); at != std::string_view::npos;
         at = text.find_first_of("&<\"\n\r\t")) {
        out.append(text.substr(0, at));
        switch (text[at]) {
            case '&':
                out += "&amp;";
                break;
            case '<':
                out += "&lt;";
                break;
            case '"':
                out += "&quot;";
                break;
            default:
                out += "&#" + std::to_string(static_cast<int>(text[at])) + ";";
                break;
        }
        text.remove_prefix(at + 1);
    }
    return out.append(text);
}

// <name field="value" .../>; `attributes` is a map of texts.
template <typename Attributes>
std::string elementText(std::string_view name, const Attributes& attributes) {
    std::string out = "<" + std::string(name);
    for (const auto& [field, value] : attributes) {
        out += " " + field + "=\"" + attributeText(value) + "\"";
    }
    return out + "/>";
}

}  // namespace tarn::test
