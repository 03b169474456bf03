#include "platform/printer.h"

#include <array>
#include <charconv>
#include <initializer_list>

#include "runtime/text.h"

namespace tarn {
namespace {

constexpr std::size_t longestNumber = 400;  // a double written out in full

std::string centimetres(double value) {
    std::array<char, longestNumber> digits{};
    const auto end =
        std::to_chars(digits.begin(), digits.end(), value, std::chars_format::fixed, 3).ptr;
    std::string text(digits.begin(), end);
    return text == "-0.000" ? "0.000" : text;
}

std::string shortest(double value) {
    std::array<char, longestNumber> digits{};
    const auto end =
        std::to_chars(digits.begin(), digits.end(), value, std::chars_format::fixed).ptr;
    return {digits.begin(), end};
}

std::string joined(std::initializer_list<std::string> fields) {
    std::string line;
    for (const std::string& field : fields) {
        if (!line.empty()) {
            line += '\t';
        }
        line += field;
    }
    return line;
}

struct LineOf {
    std::string operator()(ScaleMode mode) const {
        return joined({"scale", std::to_string(static_cast<int>(mode))});
    }
    std::string operator()(Orientation orientation) const {
        return joined({"orientation", std::to_string(static_cast<int>(orientation))});
    }
    std::string operator()(const Copies&) const { return {}; }
    std::string operator()(const DrawnText& text) const {
        return joined({"text", centimetres(text.x), centimetres(text.y), escapedLine(text.font),
                       shortest(text.size), text.bold ? "1" : "0", escapedLine(text.text)});
    }
    std::string operator()(const DrawnLine& line) const {
        return joined({"line", centimetres(line.x1), centimetres(line.y1), centimetres(line.x2),
                       centimetres(line.y2), std::to_string(line.width)});
    }
    std::string operator()(const DrawnPicture& drawn) const {
        return joined({"picture", centimetres(drawn.x), centimetres(drawn.y),
                       escapedLine(drawn.picture.name)});
    }
    std::string operator()(const PageBreak&) const { return "newpage"; }
    std::string operator()(const DocumentEnd&) const { return "enddoc"; }
};

}  // namespace

bool draws(const PrintOperation& operation) {
    return std::holds_alternative<DrawnText>(operation) ||
           std::holds_alternative<DrawnLine>(operation) ||
           std::holds_alternative<DrawnPicture>(operation);
}

std::string operationLine(const PrintOperation& operation) {
    return std::visit(LineOf{}, operation);
}

std::optional<PrinterFailure> Printer::Print(std::string_view text) {
    return perform(DrawnText{.x = CurrentX,
                             .y = CurrentY,
                             .font = FontName,
                             .size = FontSize,
                             .bold = FontBold,
                             .text = blankControls(text)});
}

std::optional<PrinterFailure> Printer::Line(double x1, double y1, double x2, double y2) {
    return perform(DrawnLine{.x1 = x1, .y1 = y1, .x2 = x2, .y2 = y2, .width = DrawWidth});
}

std::optional<PrinterFailure> Printer::PaintPicture(const Picture& picture, double x, double y) {
    return perform(DrawnPicture{.x = x, .y = y, .picture = picture});
}

}  // namespace tarn
