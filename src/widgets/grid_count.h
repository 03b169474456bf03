// What a grid holds, in words.
#pragma once

#include <string>
#include <string_view>

namespace tarn {

class GridModel;

// What its rows are.
struct RowNoun {
    std::string_view one;
    std::string_view many;
    bool feminine = false;
};

// "1.786 documentos, 3 marcados, R$ 1.234,56"; ticks and their amount where the grid has
// them. The cost doesn't grow with the rows.
std::string countText(const GridModel& model, const RowNoun& rows);

}  // namespace tarn
