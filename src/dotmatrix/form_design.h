// A pre-printed form as a drawing: boxes, texts and a picture, to be laid under what
// the printer prints.
#pragma once

#include <string>
#include <vector>

#include "dotmatrix/dialect.h"

namespace tarn::dotmatrix {

// x counts from the first print position, y from the top of the form.
struct FormBox {
    PaperUnits x = 0;
    PaperUnits y = 0;
    PaperUnits width = 0;
    PaperUnits height = 0;
    std::string label;  // UTF-8, in the box's upper corner
};

struct FormText {
    PaperUnits x = 0;
    PaperUnits y = 0;  // top of the row
    std::string text;  // UTF-8
};

// The characters an inch with which a printer starts for this form.
struct FormPitch {
    bool elite = false;
    bool condensed = false;
};

struct FormDesign {
    std::string name;  // UTF-8
    PaperUnits height = 11 * unitsPerInch;
    FormPitch pitch;
    std::vector<FormBox> boxes;
    std::vector<FormText> texts;
    // Where the document prints words of its own on the bare paper; nothing is drawn there.
    std::vector<FormBox> ownWords;
    // The job that sets the printer up ahead of each document; empty where there is none.
    std::string setUp;
    // Each document is torn off at the next perforation: none begins where another ended.
    bool everyDocumentAtTop = false;
    // A picture file laid over the whole sheet, from edge to edge; empty for none.
    std::string picture;
};

// The first that holds the place; null for none.
const FormBox* boxAt(const std::vector<FormBox>& boxes, PaperUnits x, PaperUnits y);

// A printer set up for the form at its panel.
Dialect panelFor(const FormDesign& form, Dialect dialect);

}  // namespace tarn::dotmatrix
