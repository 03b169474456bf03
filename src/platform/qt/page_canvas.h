// What the pages of a document are drawn on: a printer of the system, or a PDF file. Needs a
// QGuiApplication.
#pragma once

#include <QFont>
#include <QImage>

#include "platform/printer.h"

namespace tarn {

class PageCanvas {
public:
    PageCanvas() = default;
    PageCanvas(const PageCanvas&) = delete;
    PageCanvas& operator=(const PageCanvas&) = delete;
    virtual ~PageCanvas() = default;

    // False where a page isn't taken.
    virtual bool begin() = 0;
    virtual bool newPage() = 0;
    virtual bool end() = 0;

    virtual void text(const DrawnText& text) = 0;
    virtual void line(const DrawnLine& line) = 0;
    // `inches` is the picture's natural size.
    virtual void picture(const DrawnPicture& at, const QImage& image, const QSizeF& inches) = 0;
};

inline constexpr double centimetresPerInch = 2.54;
// The widths of lines were chosen on laser printers of this resolution.
inline constexpr double lineDotsPerInch = 600;

// The face asked for, or one with the same widths. Widths add up character by character, the
// same on every device.
QFont fontOf(const DrawnText& text);

}  // namespace tarn
