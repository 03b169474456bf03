#include "dotmatrix/form_table.h"

#include <algorithm>

namespace tarn::dotmatrix {

FormTable::FormTable(const Form& first, std::size_t index)
    : runs_{Run{.first = index, .count = 1, .top = first.top, .height = first.height}} {}

void FormTable::append(PaperUnits height) {
    const Form last = back();
    if (runs_.back().height == height) {
        ++runs_.back().count;
    } else {
        runs_.push_back(
            {.first = size(), .count = 1, .top = last.top + last.height, .height = height});
    }
}

void FormTable::setLastHeight(PaperUnits height) {
    if (runs_.back().count == 1) {
        runs_.back().height = height;
        return;
    }
    const Form last = back();
    --runs_.back().count;
    runs_.push_back({.first = size(), .count = 1, .top = last.top, .height = height});
}

Form FormTable::at(std::size_t index) const {
    const auto after =
        std::upper_bound(runs_.begin(), runs_.end(), index,
                         [](std::size_t wanted, const Run& run) { return wanted < run.first; });
    const Run& run = after == runs_.begin() ? *after : *(after - 1);
    const std::size_t place = std::min(index, run.first + run.count - 1) - run.first;
    return {run.top + static_cast<PaperUnits>(place) * run.height, run.height};
}

std::size_t FormTable::formAt(PaperUnits y) const {
    const auto after =
        std::upper_bound(runs_.begin(), runs_.end(), y,
                         [](PaperUnits wanted, const Run& run) { return wanted < run.top; });
    const Run& run = after == runs_.begin() ? *after : *(after - 1);
    const PaperUnits place = std::max<PaperUnits>(0, (y - run.top) / run.height);
    return run.first + std::min(static_cast<std::size_t>(place), run.count - 1);
}

}  // namespace tarn::dotmatrix
