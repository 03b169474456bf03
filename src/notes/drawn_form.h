// The note of a layout that draws on blank paper: a table of texts, each at its
// height on the page. A text is made of fields like a printed line and begins in
// column 2 as one; what a field has no width for counts for nothing in the columns
// behind it. Heights and margins are centimetres.
#pragma once

#include <span>
#include <string_view>
#include <variant>

#include "notes/form_check.h"
#include "notes/layout.h"

namespace tarn::notes {

struct DrawnRow {
    double x = 0;
    double y = 0;
    bool bold = false;
    Row row{};
};

// One text for each parcel, `step` apart from `y` on.
struct DrawnParcels {
    double x = 0;
    double y = 0;
    double step = 0;
    int limit = 0;               // the highest QTDE_PARC that is drawn
    std::string_view message{};  // printed at `y` above the limit
    Row row{};
};

// One text for each item row, of whatever kind, `step` apart from `y` on. The
// quantities and weights add up for the texts below.
struct DrawnItems {
    double x = 0;
    double y = 0;
    double step = 0;
    Row row{};
};

using DrawnStep = std::variant<DrawnRow, DrawnParcels, DrawnItems>;

struct DrawnForm {
    std::string_view font{};
    double size = 0;  // points
    std::span<const DrawnStep> steps{};
};

// The first flaw of the table; layouts are declared with
// `static_assert(flawOf(form) == Flaw::None)`.
constexpr Flaw flawOf(const DrawnForm& form) {
    int itemBlocks = 0;
    for (const DrawnStep& step : form.steps) {
        const check::InHand hand{.item = std::holds_alternative<DrawnItems>(step),
                                 .parcel = std::holds_alternative<DrawnParcels>(step)};
        int next = firstColumn;
        const Flaw flaw = std::visit(
            [&](const auto& s) { return check::fields(s.row.fields(), next, hand); }, step);
        if (flaw != Flaw::None) {
            return flaw;
        }
        itemBlocks += hand.item ? 1 : 0;
    }
    return itemBlocks == 1 ? Flaw::None : Flaw::ItemsMissing;
}

}  // namespace tarn::notes
