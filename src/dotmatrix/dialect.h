// How a printer is set up at its panel before the first byte comes.
#pragma once

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

}  // namespace tarn::dotmatrix
