// The layouts that this version prints, and how the ladder's names find them.
#pragma once

#include <string_view>

#include "notes/layout.h"

namespace tarn::notes {

extern const Layout imprimeNF_1361;

// Null for a name that is not among them.
const Layout* layoutByName(std::string_view name);

}  // namespace tarn::notes
