// What the compiler checks of a form before it can print.
#pragma once

#include "notes/walk.h"

namespace tarn::notes {

enum class Flaw {
    None,
    ColumnBeforeTwo,      // column 1 is the blank of every line
    FieldsOverlap,        // columns must ascend and leave each field its room
    RuleOfAnotherSource,  // the field can't become text by it
    OutsideItsBlock,      // no item or parcel is in hand there
    RightWithoutWidth,    // there is nothing to be aligned to
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

constexpr bool isText(Source source) {
    return source == Source::LegalText || source == Source::Observation;
}

// What is in hand where a field prints.
struct InHand {
    bool item = false;
    bool parcel = false;
};

constexpr Flaw flawOf(const Field& field, InHand hand) {
    if (field.column < firstColumn ||
        (field.source == Source::Mark && field.entryColumn < firstColumn)) {
        return Flaw::ColumnBeforeTwo;
    }
    if (isText(field.source) && (field.start < 1 || field.length < 1)) {
        return Flaw::PieceWithoutLength;
    }
    if (!fits(field.source, field.rule)) {
        return Flaw::RuleOfAnotherSource;
    }
    if ((isOfItem(field.source) && !hand.item) || (isOfParcel(field.rule) && !hand.parcel)) {
        return Flaw::OutsideItsBlock;
    }
    return field.right && field.width == 0 ? Flaw::RightWithoutWidth : Flaw::None;
}

// The flaw of a call's fields from column `next` on, which becomes the column behind them.
constexpr Flaw fields(std::span<const Field> fields, int& next, InHand hand) {
    for (const Field& field : fields) {
        if (const Flaw flaw = flawOf(field, hand); flaw != Flaw::None) {
            return flaw;
        }
        const bool entryFirst = field.source == Source::Mark && field.entryColumn < field.column;
        const int first = entryFirst ? field.entryColumn : field.column;
        const int last = field.entryColumn > field.column ? field.entryColumn : field.column;
        if (first < next) {
            return Flaw::FieldsOverlap;
        }
        next = last + roomOf(field);
    }
    return Flaw::None;
}

// As many places as parcels in a row. Parcels of a row share its line, or each begins
// its own call.
constexpr Flaw parcels(const Parcels& block) {
    const bool placed = block.perRow >= 1 && block.perRow <= 4 && block.limit >= block.perRow &&
                        block.limit <= mostParcels && block.rowEnds >= 0;
    if (!placed) {
        return Flaw::ParcelPlaces;
    }
    int next = firstColumn;
    for (std::size_t i = 0; i < block.places.size(); ++i) {
        const Place& place = block.places[i];
        if ((i < static_cast<std::size_t>(block.perRow)) == place.fields().empty()) {
            return Flaw::ParcelPlaces;
        }
        next = block.callPerParcel ? firstColumn : next;
        const Flaw flaw = fields(place.fields(), next, {.parcel = true});
        if (flaw != Flaw::None) {
            return flaw;
        }
    }
    return Flaw::None;
}

// Walks a form as a note with three parcels, which every form with parcels has room
// for, and counts its line ends besides those of the item lines.
class CheckingPen {
public:
    constexpr void setUp(std::string_view) {}
    constexpr void control(std::string_view) {}
    constexpr void margin(int column) { next_ = column; }
    constexpr void fields(std::span<const Field> list) {
        for (const Field& field : list) {
            showsLegalText_ |= field.source == Source::LegalText;
            showsClasses_ |= field.source == Source::ClassLine;
            showsSums_ |= field.source == Source::QuantitySum || field.source == Source::WeightSum;
        }
        found(check::fields(list, next_, hand_));
    }
    constexpr void end(int lineEnds) {
        found(lineEnds < 0 ? Flaw::NegativeAdvance : Flaw::None);
        lineEnds_ += lineEnds;
        next_ = firstColumn;
        hand_ = {};
    }

    constexpr int parcels(const Parcels& block) {
        found(check::parcels(block));
        // Nothing is walked that has no places.
        return flaw_ == Flaw::None ? 3 : block.limit + 1;
    }
    constexpr void tooMany(const Parcels&) {}
    constexpr void parcel(int) { hand_.parcel = true; }
    constexpr int belowParcels(const Parcels& block, int count) {
        return block.lineEnds[static_cast<std::size_t>(count)];
    }

    constexpr void items(const Items& block) {
        ++itemBlocks_;
        collectsLegalText_ |= block.legalTexts;
        collectsClasses_ |= block.classes;
        collectsSums_ |= block.sums;
        for (const Row* row : {&block.code, &block.line}) {
            hand_.item = true;
            fields(row->fields());
            end(0);
        }
    }
    constexpr void controlBelowItems(std::string_view) {}
    constexpr int emptyItemLines(const Items& block) {
        lineEnds_ += block.constant;
        return 0;
    }

    constexpr int services() { return serviceLines; }
    constexpr bool service(int) { return hand_.item = true; }
    constexpr bool creditToTake() { return true; }
    constexpr void band(const Band& band) {
        showsLegalText_ |= band.source == Source::LegalText;
        const bool whole = band.piece > 0 && band.most > 0 && band.lines >= band.most;
        found(whole ? Flaw::None : Flaw::PieceWithoutLength);
        end(band.lines);
    }

    constexpr int lineEnds() const { return lineEnds_; }
    // The first one of the form.
    constexpr Flaw flaw() const {
        if (flaw_ != Flaw::None) {
            return flaw_;
        }
        if (itemBlocks_ != 1) {
            return Flaw::ItemsMissing;
        }
        const bool collected = (!showsLegalText_ || collectsLegalText_) &&
                               showsClasses_ == collectsClasses_ && showsSums_ == collectsSums_;
        return collected ? Flaw::None : Flaw::TextNotCollected;
    }

private:
    constexpr void found(Flaw flaw) { flaw_ = flaw_ == Flaw::None ? flaw : flaw_; }

    Flaw flaw_ = Flaw::None;
    int next_ = firstColumn;
    InHand hand_{};
    int lineEnds_ = 0;
    int itemBlocks_ = 0;
    bool showsLegalText_ = false;
    bool showsClasses_ = false;
    bool showsSums_ = false;
    bool collectsLegalText_ = false;
    bool collectsClasses_ = false;
    bool collectsSums_ = false;
};

// Line ends of the block for three parcels.
constexpr int heightOf(const Parcels& block) {
    CheckingPen pen;
    walk(block, pen);
    return pen.lineEnds();
}

}  // namespace check

// The first flaw of a form; layouts are declared with
// `static_assert(flawOf(form) == Flaw::None)`.
constexpr Flaw flawOf(const Form& form) {
    check::CheckingPen pen;
    walkForm(form, pen);
    if (pen.flaw() != Flaw::None) {
        return pen.flaw();
    }
    return pen.lineEnds() == form.length ? Flaw::None : Flaw::LengthDiffers;
}

}  // namespace tarn::notes
