#include "platform/printer.h"

#include "runtime/text.h"

namespace tarn {

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
