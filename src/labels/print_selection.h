// Prints address labels of selected customers, two across, straight from the search.
#pragma once

#include <span>

#include "common/grid_rows.h"
#include "platform/progress.h"

namespace tarn {
struct Environment;
}

namespace tarn::labels {

// Prints the ticked rows of the grid of customers. Ends with the user being told that it
// is printed, whatever was ticked, or why the printer refused it. The one page is never broken:
// labels beyond its foot are lost.
void printSelection(Environment& environment, std::span<const GridRow> customers,
                    const Progress& progress);

}  // namespace tarn::labels
