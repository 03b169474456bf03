// Rows of a grid as they were read, apart from any widget: documents print from them.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tarn {

// One row. Columns count from 1; the cell of a check box column stays empty, what it
// holds is `marcada`.
struct LinhaGrade {
    std::vector<std::string> celulas;
    bool marcada = false;

    const std::string& coluna(std::size_t numero) const { return celulas.at(numero - 1); }
    std::string& coluna(std::size_t numero) { return celulas.at(numero - 1); }
};

}  // namespace tarn
