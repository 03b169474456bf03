// What is drawn on a page, one operation each. Coordinates are centimetres from
// the top left corner of the sheet, x to the right, y down.
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <variant>

namespace tarn {

enum class ScaleMode : int { Centimetres = 7 };
enum class Orientation : int { Portrait = 1, Landscape = 2 };

struct DrawnText {
    double x = 0;  // top left corner of the text
    double y = 0;
    std::string font;  // family
    double size = 0;   // points
    bool bold = false;
    std::string text;  // UTF-8, one line, no control characters
    bool operator==(const DrawnText&) const = default;
};

struct DrawnLine {
    double x1 = 0;
    double y1 = 0;
    double x2 = 0;
    double y2 = 0;
    int width = 1;  // dots
    bool operator==(const DrawnLine&) const = default;
};

// Pages that show the same picture share its bytes.
struct Picture {
    std::string name;
    std::shared_ptr<const std::string> bytes;  // the file's content (JPEG, PNG, ...); never null

    Picture(std::string called, std::string content)
        : name(std::move(called)), bytes(std::make_shared<const std::string>(std::move(content))) {}
    bool operator==(const Picture& other) const {
        return name == other.name && *bytes == *other.bytes;
    }
};

struct DrawnPicture {
    double x = 0;  // top left corner
    double y = 0;
    Picture picture;
    bool operator==(const DrawnPicture&) const = default;
};

struct Copies {
    int count = 1;
    bool operator==(const Copies&) const = default;
};

struct PageBreak {
    bool operator==(const PageBreak&) const = default;
};

struct DocumentEnd {
    bool operator==(const DocumentEnd&) const = default;
};

using PrintOperation = std::variant<ScaleMode, Orientation, Copies, DrawnText, DrawnLine,
                                    DrawnPicture, PageBreak, DocumentEnd>;

// Whether the operation leaves something on the page, and so begins it.
bool draws(const PrintOperation& operation);

// The operation as a line of text, fields separated by tabs, without a line end:
//   scale 7 | orientation 1 | text x y font size bold(0|1) text |
//   line x1 y1 x2 y2 width | picture x y name | newpage | enddoc
// Coordinates have three decimals, sizes as few as they need. In a value a
// backslash, tab, CR and LF are written \\, \t, \r, \n. The number of copies
// belongs to the machine's print queue and has no line: it gives the empty text.
std::string operationLine(const PrintOperation& operation);

}  // namespace tarn
