// The paper that a note must give on a form, call by call, worked out from the form's
// map and from nothing of the program.
#pragma once

#include <string>
#include <vector>

#include "tests/notes/form_facts.h"
#include "tests/notes/plain_note.h"

namespace tarn::test {

// One write to the printer.
struct ExpectedCall {
    std::string text;  // bytes, without the line ends
    int lineEnds = 0;
    int line = 1;                  // on which it begins, in its job
    int mapLine = 0;               // of the row whose first call it is; 0: none
    std::string what;              // for messages
    std::vector<MapField> fields;  // where they stand, for messages

    std::string bytes() const;
};

struct ExpectedNote {
    std::vector<std::vector<ExpectedCall>> jobs;
};

// `sums` are the printed sums of quantity and weight where they aren't those of
// the plain note.
struct Sums {
    std::string quantity = "1262,5";
    std::string weight = "1.568,750";
};

ExpectedNote expectedNote(const FormFacts& form, const NoteCase& note, const Sums& sums = {});

// Pads with blanks or cuts.
std::string fitted(const std::string& text, int width, bool right);

// The legal texts of the first `printedItems` items joined, and the observation
// behind them as the form has it.
std::string joinedTexts(const TextFacts& facts, const NoteCase& note, int printedItems,
                        bool withObservation);

}  // namespace tarn::test
