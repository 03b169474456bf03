#include "notes/layouts/layouts.h"

#include <array>

namespace tarn::notes {

std::span<const Layout* const> allLayouts() {
    // One line each.
    // clang-format off
    static constexpr std::array layouts{
        &imprimeNF_7,
        &imprimeNF_1361,
        &imprimeNF_2161_3381,
        &imprimeNF_2161_3341,
        &imprimeNF_2161_3383,
        &imprimeNF_2041,
        &imprimeNF_2321,
        &imprimeNF_1581,
        &imprimeNF_2801,
        &imprimeNF_2421,
        &imprimeNF_1521,
        &imprimeNF_821,
        &imprimeNF_3301,
        &imprimeNF_3881,
        &imprimeNF_E6001,
        &imprimeNF_3081,
        &imprimeNF_E5282,
        &imprimeNF_3601,
        &imprimeNF_2541,
        &imprimeNF_3681,
        &imprimeNF_4621,
        &imprimeNF_Padrao,
    };
    // clang-format on
    return layouts;
}

const Form* formCalled(std::string_view name) {
    for (const Layout* layout : allLayouts()) {
        if (layout->form != nullptr && layout->formName(layout->establishment) == name) {
            return layout->form;
        }
        if (layout->name == name) {
            return layout->other != nullptr ? layout->other : layout->form;
        }
    }
    return nullptr;
}

}  // namespace tarn::notes
