// Paper as the form tests tell it: a printed line as cells at their columns, and a note
// whose values fill or overflow every field.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "notes/layout.h"
#include "tests/notes/note_fixture.h"

namespace tarn::test {

// What stands at a column, counted from 1, in windows-1252.
struct Cell {
    std::size_t column;
    std::string text;
};

// "2:38" and "23:17 R" of a form: cut to the width, else padded.
Cell L(std::size_t column, std::size_t width, std::string text);
Cell L(std::size_t column, std::size_t width, char filled);
Cell R(std::size_t column, std::size_t width, std::string text);
// Takes the room of its text.
Cell T(std::size_t column, std::string text);

// One line, from the blank in column 1 to the end of its last cell.
std::string line(const std::vector<Cell>& cells);

// `length` characters from `start`, counted from 1, of a text that doesn't repeat
// itself within a few hundred characters.
std::string ruler(std::size_t start, std::size_t length);

// Texts of 200 letters, one letter for each field (NatOper "n", RAZAO "r", ...), amounts
// both short and too long. Legal text: characters 1 to 500 of the ruler; observation: 601
// to 900. Three parcels, two items, six item lines.
NoteDraft fullNote();

// Amounts of the totals row's first line: 22 characters that begin with `digit`.
std::string wide(char digit);

// Of the first item.
inline constexpr const char* unitPrice = "123456789,00";
inline constexpr const char* lineTotal = "1.234.567.890.000.000,00";

// The full note with that many parcels: "D1", "1,50" and "VENC1" for the first.
NoteDraft withParcels(int count);
// The full note with that many items, "C1", "C2" and so on, each with the legal text
// "L1", "L2" and so on, and no observation.
NoteDraft withItems(std::size_t count);
// The full note with these texts.
NoteDraft withTexts(const std::string& legal, const std::string& observation);

// Lines `from` to `to` of the stream, both counted from 1.
std::vector<std::string> rows(const std::string& stream, std::size_t from, std::size_t to);

// What the note's own job holds after a run-time error of a wrong type; it must be
// open.
std::string untilTypeError(const notes::Form& form, const NoteDraft& note);

// The lines from `number` on, as one text.
std::string below(const std::string& stream, std::size_t number);

}  // namespace tarn::test
