// The forms of the note layouts, drawn from the tables that print them: a box wherever
// a field can land, at the pitch in which it lands there.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "dotmatrix/form_design.h"

namespace tarn::dotmatrix {

// "ImprimeNF_1361"; a layout of two forms has "ImprimeNF_2421_3621", by establishment,
// and "ImprimeNF_2421", the form of all others. In the order of the ladder.
std::vector<std::string> layoutFormNames();

// A form and who prints on it: a company and an establishment that the reprint screen's
// ladder brings to it.
struct LadderForm {
    std::string name;
    std::int32_t company = 0;
    std::int32_t establishment = 0;
    bool linesOfNote = false;  // it is as long as the note's items, not as QT_MAX_IT says
};
std::vector<LadderForm> ladderForms();

// What a user calls it, by whose notes go on it: "Nota: 1361, 141, 761".
std::string layoutFormTitle(std::string_view name);

// The drawing of one of them, nothing for any other name. `itemLines` is how many lines
// the form has for items (0 and up); without it as many as fill a sheet of 11 inches.
std::optional<FormDesign> layoutForm(std::string_view name,
                                     std::optional<int> itemLines = std::nullopt);

}  // namespace tarn::dotmatrix
