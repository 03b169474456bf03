#include "notes/layouts/layouts.h"

#include <algorithm>
#include <array>

namespace tarn::notes {

const Layout* layoutByName(std::string_view name) {
    static constexpr std::array layouts{&imprimeNF_1361};
    const auto* found = std::find_if(layouts.begin(), layouts.end(),
                                     [name](const Layout* layout) { return layout->name == name; });
    return found == layouts.end() ? nullptr : *found;
}

}  // namespace tarn::notes
