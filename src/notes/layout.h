// A note layout is a table: the set-up bytes of the printer, then one step for
// each printed line of the pre-printed form, top to bottom. This file holds the
// shapes a layout file is written in; the pipeline prints them.
//
// Columns count from 1 as on the form; column 1 is the blank that every line
// begins with, so the first field is in column 2 at the earliest. Widths count
// characters. An advance is the number of line ends behind a line.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "notes/source_table.h"
#include "runtime/mask.h"

namespace tarn::notes {

struct Field {
    Source source = Source::Literal;
    Rule rule = Rule::FormText;
    bool right = false;
    std::uint16_t column = 0;
    std::uint16_t entryColumn = 0;  // Mark on an entry note
    std::uint16_t width = 0;        // 0: takes the room of its text
    std::uint16_t room = 0;         // what the form leaves for it, where the width is 0
    std::uint16_t start = 0;        // LegalText, Observation: first character, from 1
    std::uint16_t length = 0;       //                         and how many
    std::string_view label{};       // printed ahead of the value, inside the width
    NumberMask mask{""};
};

inline constexpr std::size_t mostFields = 16;

struct Row {
    int advance = 0;
    std::size_t count = 0;
    std::array<Field, mostFields> field{};

    constexpr std::span<const Field> fields() const { return std::span(field).first(count); }
};

// Control bytes for the printer; they move nothing on the paper. With an advance
// a call of its own brings the line ends.
struct Control {
    std::string_view bytes{};
    int advance = 0;
};

// The fields of one parcel, at the columns of its place in the printed row.
struct Place {
    std::size_t count = 0;
    std::array<Field, 4> field{};

    constexpr std::span<const Field> fields() const { return std::span(field).first(count); }
};

struct Parcels {
    int limit = 0;               // the highest QTDE_PARC that prints
    std::string_view message{};  // printed in the block above the limit
    int perRow = 1;
    std::array<Place, 4> places{};
    // Line ends of the block's last call, by QTDE_PARC from 0 to `limit`, and of the
    // message.
    std::array<int, mostParcels + 1> lineEnds{};
    int lineEndsAbove = 0;
    bool callPerParcel = false;  // each parcel its own call, on the line of the one before
    int rowEnds = 1;             // line ends of a full row
};

// What becomes of item rows past QT_MAX_IT.
enum class Overflow : std::uint8_t {
    Pushing,  // all print, what is below moves down
    Cutting,  // they are dropped
};

// How QTDE becomes a number.
enum class Quantity : std::uint8_t {
    Amount,        // point or comma is decimal; absent is 0
    PointsGroup,   // the point groups: 12.500 is 12500; absent is 5
    AmountOrFive,  // point or comma is decimal; absent is 5
};

struct Items {
    Row line{};  // one item; its advance is the item's own line end
    Row code{};  // fields that go ahead of it in a call of their own
    Overflow overflow = Overflow::Pushing;
    Quantity quantity = Quantity::Amount;
    bool productsOnly = true;         // only rows with IC_TP_CAD "P"
    bool legalTexts = true;           // collects DC_TXT_LEG_NF
    bool classes = false;             // collects the class line
    bool sums = false;                // adds up quantities and weights
    bool services = false;            // the service block is below the products
    std::string_view controlAfter{};  // control bytes behind the last item
    bool fillsForm = true;            // blank lines up to QT_MAX_IT
    int constant = 0;                 // blank lines more (or less)
    int lineEnds = 0;                 // fixed line ends below
};

// Lines reserved for a text that prints in pieces of `piece` characters from
// `column`; what goes beyond `most` lines is dropped.
struct Band {
    Source source = Source::LegalText;  // or DC_OBS
    int column = 2;
    int piece = 0;
    int most = 0;
    int lines = 0;        // the band's height
    int oneLineUpTo = 0;  // a text longer than this takes two lines; 0: than a piece
};

// Two rows when there is a credit to take, else as many line ends.
struct Credit {
    Row amount{};
    Row rate{};
};

using Step = std::variant<Row, Control, Parcels, Items, Band, Credit>;

// What is joined behind the legal texts when DC_OBS isn't empty.
enum class Joined : std::uint8_t {
    Labelled,           // " OBS.: " and DC_OBS
    Bare,               // DC_OBS alone
    SeparatedLabelled,  // the separator of legal texts, " OBS.: " and DC_OBS
    Nothing,            // DC_OBS has its own place, or none
};

struct Form {
    // Bytes that set the printer up in a job of their own; empty: the form's own
    // first steps do it in the job of the note.
    std::string_view setUp{};
    // Line ends of a note with three parcels, besides one for each of QT_MAX_IT (in
    // a form without blank lines: for each item).
    int length = 0;
    Joined observation = Joined::Labelled;
    std::span<const Step> steps{};
};

struct DrawnForm;

// `form` is printed when the establishment is `establishment`, or always when `other`
// is null. A layout that draws on blank paper has `drawn` in their place.
struct Layout {
    std::string_view name{};
    const Form* form = nullptr;
    std::int32_t establishment = 0;
    const Form* other = nullptr;
    const DrawnForm* drawn = nullptr;

    constexpr const Form& formFor(std::int32_t logged) const {
        return other == nullptr || logged == establishment ? *form : *other;
    }
    // What the form is called: the layout's name, with the establishment where that has one of
    // its own.
    std::string formName(std::int32_t logged) const {
        const bool ofItsOwn = other != nullptr && logged == establishment;
        return std::string(name) + (ofItsOwn ? "_" + std::to_string(establishment) : "");
    }
};

}  // namespace tarn::notes
