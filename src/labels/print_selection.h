// Prints address labels of selected customers, two across, straight from the search.
#pragma once

#include <span>

#include "common/grid_row.h"
#include "platform/progress.h"

namespace tarn {
struct Environment;
}

namespace tarn::labels {

// Prints the ticked rows of the grid of customers. Ends with the user being told that it
// is printed, whatever was ticked. The one page is never broken: labels beyond its foot
// are lost.
void imprimeSelecao(Environment& ambiente, std::span<const LinhaGrade> clientes,
                    const Progress& andamento);

}  // namespace tarn::labels
