// The full note with the fields of the forms from 1521 on: addresses for billing and
// delivery, classes, an observation of its own, a tax credit.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "tests/notes/paper.h"

namespace tarn::test {

// Legal text: characters 1 to 500 of the ruler; observation: 601 to 900. Two items,
// six item lines, three parcels.
NoteText wideNote();
// The wide note with that many parcels: "D1", "1,50" and "VENC1" for the first.
NoteText wideParcels(int count);
// The wide note with that many items, "C1", "C2" and so on, each with the legal text
// "L1", "L2" and so on, and no observation.
NoteText wideItems(std::size_t count);
// The wide note with these texts.
NoteText wideTexts(const std::string& legal, const std::string& observation);

// Lines `from` to `to` of the stream, both counted from 1.
std::vector<std::string> rows(const std::string& stream, std::size_t from, std::size_t to);

// What the note's own job holds after a run-time error of a wrong type; it must be
// open.
std::string untilTypeError(const notes::Form& form, const NoteText& note);

}  // namespace tarn::test
