// What a note loses on its form: kept by a run that somebody watches, so that a clerk
// hears of it before a numbered form is spent.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "notes/layout.h"

namespace tarn::notes {

struct Loss {
    enum class Kind : std::uint8_t {
        Text,            // the end of a text, or a part of it, has no room
        Amount,          // digits that have no room: what prints is another number
        Item,            // an item row that doesn't print, for want of lines
        Unplaced,        // an item row that doesn't print: the form has no place for its kind
        ItemsOver,       // more item lines than the form's; all below is lower
        ParcelsOverflow  // none prints
    };
    Kind kind{};
    int line = 0;         // printed line, from 1; 0 on a drawn page and where it has none
    int column = 0;       // printed column of the field, from 1; 0 where it has none
    int item = 0;         // item row, from 1; 0 outside the items
    std::string field{};  // as the server spells it, or in words (Portuguese)
    std::string lost{};   // UTF-8
    int count = 0;        // of lines or parcels
    int limit = 0;        // how many the form has room for
};

// One line in Portuguese, without a line end; the second without line and column.
std::string describe(const Loss& loss);
std::string describeInPlace(const Loss& loss);

// Whether a number that prints as the first `shown` characters of `text` still reads the
// same. Not for texts that are no numbers.
bool readsTheSame(std::string_view text, std::size_t shown);

class LossLog {
public:
    const std::vector<Loss>& losses() const { return losses_; }

    // Where the run is.
    void lineEnds(int count) { line_ += count; }
    void drawnPage() { line_ = 0; }
    void item(int number) { item_ = number; }

    // `value` goes into the field, which begins at `column`; a cut is kept.
    void field(const Field& field, int column, int parcel, std::string_view value);
    // A piece of `text`, of which each piece shows some characters.
    void piece(const Field& field, int column);
    // All of the pieces have been printed: what none has shown of `text` is lost.
    void pieces(Source source, std::string_view text);
    void band(Source source, int column, std::string_view rest);
    void add(Loss loss);

private:
    struct Shown {
        Source source;
        std::size_t first;  // character, from 1
        std::size_t length;
        int line;
        int column;
    };
    std::vector<Loss> losses_;
    std::vector<Shown> shown_;
    int line_ = 1;
    int item_ = 0;
};

}  // namespace tarn::notes
