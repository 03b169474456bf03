// The one walk over a form: everything that it has, in the order in which it goes on
// paper. Whoever prints a form, draws it or checks it hands in a pen, which is told of
// each field and each line end and asked for what the note decides.
#pragma once

#include <concepts>
#include <span>
#include <string_view>
#include <variant>

#include "notes/form_rows.h"

namespace tarn::notes {

// First printed column of a call's own text.
inline constexpr int firstColumn = 2;

// The block of services: its lines, and the tax boxes that a form has beside the fourth
// and the sixth.
inline constexpr int serviceLines = 6;
inline constexpr Row serviceLine =
    row(1, left(Source::CD_PRO, 2, 12), left(Source::DESCRICAO, 14, 75),
        right(Source::VL_LIQ_IT, 89, 15));
inline constexpr Row emptyServiceLine = row(1, blank(2, 12), blank(14, 75), blank(89, 15));
inline constexpr Row besideFourth =
    row(1, right(Source::LastServiceRate, 104, 5), right(Source::ServiceTaxSum, 109, 15));
inline constexpr Row besideSixth = row(1, right(Source::ServiceSum, 104, 15));

template <class P>
concept Pen = requires(P& pen, std::string_view bytes, std::span<const Field> fields, int number,
                       const Parcels& parcels, const Items& items, const Band& band) {
    // The note begins; `bytes`, unless empty, go ahead in a job of their own.
    pen.setUp(bytes);
    // A call of control bytes, without line ends.
    pen.control(bytes);
    // The call in hand goes on at that column, with those fields; it goes out with so
    // many line ends.
    pen.margin(number);
    pen.fields(fields);
    pen.end(number);

    // How many there are; more than the block's limit: too many.
    { pen.parcels(parcels) } -> std::same_as<int>;
    pen.tooMany(parcels);
    // The parcel in hand, from 1.
    pen.parcel(number);
    // Line ends of the block's last call, below that many parcels.
    { pen.belowParcels(parcels, number) } -> std::same_as<int>;

    // All item rows, each with its own line end.
    pen.items(items);
    pen.controlBelowItems(bytes);
    { pen.emptyItemLines(items) } -> std::same_as<int>;

    // How many lines the form has for services, and whether there is one for that line.
    { pen.services() } -> std::same_as<int>;
    { pen.service(number) } -> std::same_as<bool>;

    { pen.creditToTake() } -> std::same_as<bool>;
    pen.band(band);
};

template <Pen P>
constexpr void walk(const Row& row, P& pen) {
    pen.fields(row.fields());
    pen.end(row.advance);
}

template <Pen P>
constexpr void walk(const Control& control, P& pen) {
    pen.control(control.bytes);
    if (control.advance != 0) {
        pen.end(control.advance);
    }
}

template <Pen P>
constexpr void walk(const Parcels& block, P& pen) {
    const int count = pen.parcels(block);
    if (count > block.limit) {
        return pen.tooMany(block);
    }
    // The blanks ahead of the first parcel are sent also where the rest of a row is empty
    // (decisions N18, N20).
    const int first = block.places[0].fields().front().column;
    if (count > 0 && !block.callPerParcel) {
        pen.margin(first);
    }
    for (int parcel = 1; parcel <= count; ++parcel) {
        pen.parcel(parcel);
        pen.fields(block.places[static_cast<std::size_t>((parcel - 1) % block.perRow)].fields());
        const bool fillsRow = parcel % block.perRow == 0;
        if (block.callPerParcel) {
            pen.end(fillsRow ? block.rowEnds : 0);
        } else if (fillsRow) {
            pen.end(block.rowEnds);
            pen.margin(first);
        }
    }
    pen.end(pen.belowParcels(block, count));
}

// The lines that the form has, and the empty rest of its own six (decision N46).
template <Pen P>
constexpr void walkServices(P& pen) {
    const int lines = pen.services();
    for (int line = 1; line <= lines; ++line) {
        pen.fields((pen.service(line) ? serviceLine : emptyServiceLine).fields());
        if (line == 4) {
            pen.fields(besideFourth.fields());
        } else if (line == 6) {
            pen.fields(besideSixth.fields());
        }
        pen.end(serviceLine.advance);
    }
    const int rest = serviceLines - (lines > 0 ? lines : 0);
    if (rest > 0) {
        pen.end(rest);
    }
}

template <Pen P>
constexpr void walk(const Items& block, P& pen) {
    pen.items(block);
    if (!block.controlAfter.empty()) {
        pen.controlBelowItems(block.controlAfter);
    }
    if (block.fillsForm) {
        pen.end(pen.emptyItemLines(block));
    }
    if (block.services) {
        walkServices(pen);
    } else if (block.lineEnds > 0) {
        pen.end(block.lineEnds);
    }
}

template <Pen P>
constexpr void walk(const Band& band, P& pen) {
    pen.band(band);
}

template <Pen P>
constexpr void walk(const Credit& credit, P& pen) {
    if (pen.creditToTake()) {
        walk(credit.amount, pen);
        walk(credit.rate, pen);
    } else {
        pen.end(credit.amount.advance + credit.rate.advance);
    }
}

template <Pen P>
constexpr void walkForm(const Form& form, P& pen) {
    pen.setUp(form.setUp);
    for (const Step& step : form.steps) {
        std::visit([&pen](const auto& s) { walk(s, pen); }, step);
    }
}

}  // namespace tarn::notes
