// The part of a printer's state that decides how the next character looks.
#pragma once

#include <cstdint>

#include "dotmatrix/continuous_paper.h"

namespace tarn::dotmatrix {

struct PrintMode {
    bool elite = false;      // 12 instead of 10 an inch
    bool micron = false;     // 15 an inch
    bool condensed = false;  // 17.14 instead of 10, 20 instead of 12
    bool wide = false;       // double width until cancelled
    bool wideLine = false;   // double width to the end of the line
    bool eliteOverridesCondensed = false;
    std::uint8_t style = plain;

    // Width of one character cell.
    std::uint16_t cellWidth() const;
    void setStyle(Style bit, bool on);
    // Master select: bits 0 elite, 2 condensed, 3 emphasised, 4 double strike,
    // 5 double width, 6 italic, 7 underline. Bit 1, proportional, is not drawn.
    void select(std::uint8_t bits);
};

}  // namespace tarn::dotmatrix
