// What the compiler checks of a form before it can print.
#pragma once

#include "notes/layout.h"

namespace tarn::notes {

enum class Flaw {
    None,
    ColumnBeforeTwo,    // column 1 is the blank of every line
    FieldsOverlap,      // columns must ascend and leave each field its room
    RightWithoutWidth,  // there is nothing to be aligned to
    PieceWithoutLength,
    ParcelPlaces,  // as many places as parcels in a row, up to the known limit
    NegativeAdvance,
    ItemsMissing,      // exactly one items block
    TextNotCollected,  // a field shows what the items block doesn't collect
    LengthDiffers,     // the advances don't add up to the stated length
};

namespace check {

constexpr int roomOf(const Field& field) {
    return field.width > 0 ? field.width : field.room;
}

constexpr Flaw fields(std::span<const Field> fields, int from = 2) {
    int next = from;
    for (const Field& field : fields) {
        if (field.column < 2 || (field.source == Source::Mark && field.entryColumn < 2)) {
            return Flaw::ColumnBeforeTwo;
        }
        const bool piece = field.source == Source::LegalText || field.source == Source::Observation;
        if (piece && (field.start < 1 || field.length < 1)) {
            return Flaw::PieceWithoutLength;
        }
        if (field.right && field.width == 0) {
            return Flaw::RightWithoutWidth;
        }
        const int first = field.source == Source::Mark && field.entryColumn < field.column
                              ? field.entryColumn
                              : field.column;
        const int last = field.entryColumn > field.column ? field.entryColumn : field.column;
        if (first < next) {
            return Flaw::FieldsOverlap;
        }
        next = last + roomOf(field);
    }
    return Flaw::None;
}

constexpr Flaw parcels(const Parcels& block) {
    const bool placed = block.perRow >= 1 && block.perRow <= 4 && block.limit >= block.perRow &&
                        block.limit <= mostParcels && block.rowEnds >= 0;
    if (!placed) {
        return Flaw::ParcelPlaces;
    }
    int next = 2;
    for (std::size_t i = 0; i < block.places.size(); ++i) {
        const Place& place = block.places[i];
        const bool used = i < static_cast<std::size_t>(block.perRow);
        if (used == place.fields().empty()) {
            return Flaw::ParcelPlaces;
        }
        // Parcels of a row share its line, or each begins its own call.
        const Flaw flaw = fields(place.fields(), block.callPerParcel ? 2 : next);
        if (flaw != Flaw::None) {
            return flaw;
        }
        if (used) {
            const Field& last = place.fields().back();
            next = last.column + roomOf(last);
        }
    }
    return Flaw::None;
}

// Line ends of the block for three parcels, which every form with parcels has
// room for.
constexpr int heightOf(const Parcels& block) {
    return 3 / block.perRow * block.rowEnds + block.lineEnds[3];
}

constexpr int serviceLines = 6;

constexpr int heightOf(const Items& block) {
    return block.services ? serviceLines : block.constant + block.lineEnds;
}

struct Totals {
    int lineEnds = 0;
    int itemBlocks = 0;
    bool showsLegalText = false;
    bool showsClasses = false;
    bool showsSums = false;
    bool collectsLegalText = false;
    bool collectsClasses = false;
    bool collectsSums = false;
};

constexpr void see(Totals& totals, std::span<const Field> fields) {
    for (const Field& field : fields) {
        totals.showsLegalText |= field.source == Source::LegalText;
        totals.showsClasses |= field.source == Source::ClassLine;
        totals.showsSums |=
            field.source == Source::QuantitySum || field.source == Source::WeightSum;
    }
}

constexpr Flaw step(const Row& row, Totals& totals) {
    totals.lineEnds += row.advance;
    see(totals, row.fields());
    return row.advance < 0 ? Flaw::NegativeAdvance : fields(row.fields());
}
constexpr Flaw step(const Control& control, Totals& totals) {
    totals.lineEnds += control.advance;
    return control.advance < 0 ? Flaw::NegativeAdvance : Flaw::None;
}
constexpr Flaw step(const Parcels& block, Totals& totals) {
    totals.lineEnds += heightOf(block);
    return parcels(block);
}
constexpr Flaw step(const Items& block, Totals& totals) {
    totals.lineEnds += heightOf(block);
    ++totals.itemBlocks;
    totals.collectsLegalText |= block.legalTexts;
    totals.collectsClasses |= block.classes;
    totals.collectsSums |= block.sums;
    const Flaw flaw = fields(block.line.fields());
    return flaw != Flaw::None ? flaw : fields(block.code.fields());
}
constexpr Flaw step(const Band& band, Totals& totals) {
    totals.lineEnds += band.lines;
    totals.showsLegalText |= band.source == Source::LegalText;
    const bool whole = band.piece > 0 && band.most > 0 && band.lines >= band.most;
    return whole ? Flaw::None : Flaw::PieceWithoutLength;
}
constexpr Flaw step(const Credit& credit, Totals& totals) {
    totals.lineEnds += credit.amount.advance + credit.rate.advance;
    const Flaw flaw = fields(credit.amount.fields());
    return flaw != Flaw::None ? flaw : fields(credit.rate.fields());
}

}  // namespace check

// The first flaw of a form; layouts are declared with
// `static_assert(flawOf(form) == Flaw::None)`.
constexpr Flaw flawOf(const Form& form) {
    check::Totals totals;
    for (const Step& step : form.steps) {
        const Flaw flaw = std::visit([&](const auto& s) { return check::step(s, totals); }, step);
        if (flaw != Flaw::None) {
            return flaw;
        }
    }
    if (totals.itemBlocks != 1) {
        return Flaw::ItemsMissing;
    }
    const bool collected = (!totals.showsLegalText || totals.collectsLegalText) &&
                           totals.showsClasses == totals.collectsClasses &&
                           totals.showsSums == totals.collectsSums;
    if (!collected) {
        return Flaw::TextNotCollected;
    }
    return totals.lineEnds == form.length ? Flaw::None : Flaw::LengthDiffers;
}

}  // namespace tarn::notes
