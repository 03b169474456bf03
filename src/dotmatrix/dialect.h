// How a printer is set up: at its panel before the first byte comes, and by the bytes, for
// the look of the next character.
#pragma once

#include <cstdint>

#include "dotmatrix/continuous_paper.h"
#include "runtime/code_page.h"

namespace tarn::dotmatrix {

enum class Needles { Nine, TwentyFour };

struct Dialect {
    Needles needles = Needles::Nine;  // the fine unit of ESC 3 and ESC J: 1/216 or 1/180 inch
    CodePage codePage = CodePage::Page1252;
    PaperUnits formHeight = 11 * unitsPerInch;
    PaperUnits carriageWidth = 136 * unitsPerInch / 10;  // room for 136 characters of 10 an inch
    // Pitch after power on and ESC @.
    bool elite = false;
    bool condensed = false;
    // The oldest printers of the family print 12 characters an inch when both elite and
    // condensed are on; all later ones 20, in whichever order the two came.
    bool eliteOverridesCondensed = false;
};

// The part of a printer's state that decides how the next character looks.
struct PrintMode {
    bool elite = false;      // 12 instead of 10 an inch
    bool micron = false;     // 15 an inch
    bool condensed = false;  // 17.14 instead of 10, 20 instead of 12
    bool wide = false;       // double width until cancelled
    bool wideLine = false;   // double width to the end of the line
    bool eliteOverridesCondensed = false;
    Style style = plain;

    // Width of one character cell.
    std::uint16_t cellWidth() const;
    void setStyle(Style bit, bool on);
    // Master select: bits 0 elite, 2 condensed, 3 emphasised, 4 double strike,
    // 5 double width, 6 italic, 7 underline. Bit 1, proportional, is not drawn.
    void select(std::uint8_t bits);
};

}  // namespace tarn::dotmatrix
