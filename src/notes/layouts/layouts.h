// The layouts that this version prints.
#pragma once

#include <span>
#include <string_view>

#include "notes/layout.h"

namespace tarn::notes {

extern const Layout imprimeNF_7;
extern const Layout imprimeNF_1361;
extern const Layout imprimeNF_2161_3381;
extern const Layout imprimeNF_2161_3341;
extern const Layout imprimeNF_2161_3383;
extern const Layout imprimeNF_2041;
extern const Layout imprimeNF_2321;
extern const Layout imprimeNF_1581;
extern const Layout imprimeNF_2801;
extern const Layout imprimeNF_2421;
extern const Layout imprimeNF_1521;
extern const Layout imprimeNF_821;
extern const Layout imprimeNF_3301;
extern const Layout imprimeNF_3881;
extern const Layout imprimeNF_E6001;
extern const Layout imprimeNF_3081;
extern const Layout imprimeNF_E5282;
extern const Layout imprimeNF_3601;
extern const Layout imprimeNF_2541;
extern const Layout imprimeNF_3681;
extern const Layout imprimeNF_4621;
extern const Layout imprimeNF_Padrao;

// In the order of the ladder.
std::span<const Layout* const> allLayouts();

// By the form's name, as Layout::formName has it; null where no note is printed on such a one.
const Form* formCalled(std::string_view name);

}  // namespace tarn::notes
