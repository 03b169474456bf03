#include "dotmatrix/form_page.h"

namespace tarn::dotmatrix {

FormPage pageOf(const ContinuousPaper& paper, std::size_t form) {
    FormPage page{.form = form, .shape = paper.forms().at(form), .lines = {}};
    const auto& lines = paper.lines();
    for (std::size_t i = paper.firstLineOf(form); i < lines.size() && lines[i].form == form; ++i) {
        page.lines.push_back(lines[i]);
    }
    return page;
}

PaperPages pagesOf(const ContinuousPaper& paper) {
    return {.count = paper.printedForms(),
            .contentWidth = paper.contentWidth(),
            .page = [&paper](std::size_t form) {
                return std::make_shared<const FormPage>(pageOf(paper, form));
            }};
}

}  // namespace tarn::dotmatrix
