#include "notes/ladder.h"

#include <algorithm>

#include "notes/layouts/layouts.h"

namespace tarn {
namespace {

// A rung for that company alone, or for that establishment of any company.
constexpr Rung company(std::int32_t code, const notes::Layout& layout) {
    return {.company = code, .layout = &layout};
}
constexpr Rung establishment(std::int32_t code, const notes::Layout& layout) {
    return {.establishment = code, .layout = &layout};
}
constexpr Rung of2161(std::int32_t establishment, const notes::Layout& layout) {
    return {.company = 2161, .establishment = establishment, .layout = &layout};
}

constexpr Rung ladder[] = {
    // The ladders differ on purpose (decision N58): the reprint screen knows nothing of company
    // 761 and asks for 2541 early.
    {.only = Ladder::Issuing, .company = 761, .layout = &notes::imprimeNF_1361},
    {.only = Ladder::Reprint, .company = 2541, .layout = &notes::imprimeNF_2541},

    // Company 2161 has a form for some of its establishments only.
    of2161(3381, notes::imprimeNF_2161_3381),
    of2161(3382, notes::imprimeNF_2161_3381),
    of2161(3384, notes::imprimeNF_2161_3381),
    of2161(3385, notes::imprimeNF_2161_3381),
    of2161(3341, notes::imprimeNF_2161_3341),
    of2161(3383, notes::imprimeNF_2161_3383),
    {.company = 2161},

    // Companies with one form wherever they are.
    company(7, notes::imprimeNF_7),
    company(1361, notes::imprimeNF_1361),
    company(141, notes::imprimeNF_1361),
    company(2041, notes::imprimeNF_2041),
    company(2321, notes::imprimeNF_2321),
    company(1581, notes::imprimeNF_1581),
    company(2801, notes::imprimeNF_2801),
    company(2421, notes::imprimeNF_2421),
    company(1521, notes::imprimeNF_1521),
    company(821, notes::imprimeNF_821),
    company(3301, notes::imprimeNF_3301),

    // From here on an establishment may come before the companies.
    establishment(6001, notes::imprimeNF_E6001),
    company(3881, notes::imprimeNF_3881),
    company(3081, notes::imprimeNF_3081),
    company(3141, notes::imprimeNF_3081),
    establishment(5282, notes::imprimeNF_E5282),
    company(3601, notes::imprimeNF_3601),
    establishment(5281, notes::imprimeNF_3601),
    company(2541, notes::imprimeNF_2541),
    company(3681, notes::imprimeNF_3681),
    company(4621, notes::imprimeNF_4621),
    company(541, notes::imprimeNF_4621),

    {.layout = &notes::imprimeNF_Padrao},
};

template <class Value>
bool fits(const std::optional<Value>& wanted, Value value) {
    return !wanted || *wanted == value;
}

}  // namespace

std::span<const Rung> rungs() {
    return ladder;
}

const notes::Layout* layoutFor(Ladder which, std::int32_t company, std::int32_t establishment) {
    const auto* rung = std::find_if(std::begin(ladder), std::end(ladder), [&](const Rung& r) {
        return fits(r.only, which) && fits(r.company, company) &&
               fits(r.establishment, establishment);
    });
    return rung->layout;
}

}  // namespace tarn
