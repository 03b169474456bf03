// One form of the paper with what is printed on it: what is
// drawn, written and searched page by page.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

#include "dotmatrix/continuous_paper.h"

namespace tarn::dotmatrix {

struct FormPage {
    std::size_t form = 0;  // from 0
    Form shape{};
    std::vector<PaperLine> lines;  // in the order of printing
};

FormPage pageOf(const ContinuousPaper& paper, std::size_t form);

// Paper to be written to a file; it must not change meanwhile.
struct PaperPages {
    std::size_t count = 0;  // forms up to the last one that is printed on
    PaperUnits contentWidth = 0;
    std::function<std::shared_ptr<const FormPage>(std::size_t form)> page;
};

// `paper` must outlive the result.
PaperPages pagesOf(const ContinuousPaper& paper);

}  // namespace tarn::dotmatrix
