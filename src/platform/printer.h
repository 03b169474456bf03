// Seam: the page printer. A document sets the page up, draws and ends; it is
// printed when it ends and leaves nothing on paper before. A page begins with the
// first thing drawn on it, so a NewPage right before EndDoc adds no blank sheet and
// an EndDoc with nothing drawn prints nothing.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/print_operation.h"
#include "platform/progress.h"

namespace tarn {

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
    double CurrentX = 0;  // centimetres from the corner of the sheet
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

    // What all of these come down to.
    virtual std::optional<PrinterFailure> perform(const PrintOperation& operation) = 0;
};

}  // namespace tarn
