// Seam: the page printer. A document sets the page up, draws and ends; it is
// printed when it ends and leaves nothing on paper before. A page begins with the
// first thing drawn on it, so a NewPage right before EndDoc adds no blank sheet and
// an EndDoc with nothing drawn prints nothing.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

#include "platform/progress.h"

namespace tarn {

// What is drawn on a page, one operation each. Coordinates are centimetres from the top left
// corner of the area that the printer can print on (decision D130), x to the right, y down.

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

// Why something can't be drawn or printed; Portuguese, for the user.
struct PrinterFailure {
    int number = 0;
    std::string description;
    bool operator==(const PrinterFailure&) const = default;
};

// Number under which every implementation reports trouble with its printer.
inline constexpr int printerTrouble = 482;

class Printer {
public:
    virtual ~Printer() = default;

    // How and where the next things are drawn; in force until set again, over
    // EndDoc too. Printing a text doesn't move the position.
    std::string FontName = "Arial";
    double FontSize = 8;  // points
    bool FontBold = false;
    double CurrentX = 0;  // centimetres from the corner of the printable area
    double CurrentY = 0;
    int DrawWidth = 1;  // of lines, in dots of 1/600 inch

    // Told page by page by a printer that takes its time over them in EndDoc.
    Progress progress;

    // The page; likewise in force until set again.
    void setScaleMode(ScaleMode mode) { perform(mode); }
    void setOrientation(Orientation orientation) { perform(orientation); }
    void setCopies(int count) { perform(Copies{count}); }

    // Draws one line of text, its top left corner at the position. A control
    // character is drawn as one blank.
    std::optional<PrinterFailure> Print(std::string_view text);
    // Black, from one point to the other, in the width set.
    std::optional<PrinterFailure> Line(double x1, double y1, double x2, double y2);
    // At its natural size, the top left corner at (x, y).
    std::optional<PrinterFailure> PaintPicture(const Picture& picture, double x, double y);

    std::optional<PrinterFailure> NewPage() { return perform(PageBreak{}); }
    std::optional<PrinterFailure> EndDoc() { return perform(DocumentEnd{}); }

    // The machine's name of the printer; empty where it has none.
    virtual std::string name() { return {}; }

    // What all of these come down to.
    virtual std::optional<PrinterFailure> perform(const PrintOperation& operation) = 0;
};

}  // namespace tarn
