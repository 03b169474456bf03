// Rows of a grid as they were read, apart from any widget: documents print from them.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tarn {

// One row. Columns count from 1; the cell of a check box column stays empty, what it
// holds is `ticked`.
struct GridRow {
    std::vector<std::string> cells;
    bool ticked = false;

    const std::string& column(std::size_t number) const { return cells.at(number - 1); }
    std::string& column(std::size_t number) { return cells.at(number - 1); }
};

}  // namespace tarn
