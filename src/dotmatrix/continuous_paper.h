// The paper that has come out of the printer: one endless strip, divided into
// forms by perforations, with every character where its needles struck. x counts from
// the first print position.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "dotmatrix/form_table.h"

namespace tarn::dotmatrix {

enum Style : std::uint8_t {
    plain = 0,
    emphasised = 1,
    doubleStrike = 2,
    underlined = 4,
    italicShear = 8,
};

struct Cell {
    std::int32_t x = 0;
    std::uint16_t width = 0;   // of the whole cell
    std::uint16_t column = 1;  // printed characters since the left margin, from 1
    char16_t character = u' ';
    std::uint8_t style = plain;
};

// What one job printed in one row. Blanks leave no cell, and a row on which
// nothing was printed leaves no line.
struct PaperLine {
    PaperUnits y = 0;         // top of the row
    std::size_t form = 0;     // from 0
    std::size_t row = 0;      // line feeds since the top of its form
    std::size_t job = 0;      // from 1
    std::size_t jobLine = 0;  // line and form feeds since the job began, from 1
    // Columns that an earlier job had passed in this row when this one began.
    std::uint16_t columnsBefore = 0;
    std::vector<Cell> cells;  // in the order of printing; an overprint stands later
};

// Where the printer stands on the paper, for going on from there later.
struct PaperPosition {
    std::size_t form = 0;  // from 0
    Form shape{};          // of that form
    PaperUnits formHeight = 0;
    PaperUnits y = 0;
    std::size_t row = 0;
    std::size_t job = 0;
    std::size_t jobLine = 1;
};

// Characters that one form keeps; what is printed over a form that is this black
// already is not kept. A form has room for less than a tenth of it.
inline constexpr std::size_t mostCellsOnForm = 200'000;

class ContinuousPaper {
public:
    // `formHeight` is above 0; the paper begins with one empty form.
    explicit ContinuousPaper(PaperUnits formHeight);
    // Goes on from a position; what was printed before it is not on this paper.
    explicit ContinuousPaper(const PaperPosition& position);

    // A new job goes on where the paper stands; the first job is 1.
    void startJob();
    // Feeds one row of `distance` (0 and up), over perforations where it must.
    void feedRow(PaperUnits distance);
    // Feeds without a new row being counted, as a fine adjustment does.
    void feedFine(PaperUnits distance);
    void feedToNextForm();
    // The present row becomes the first of a form of this height (above 0), and so do
    // all that follow it. What stands in the row goes along.
    void setFormHeight(PaperUnits height);
    // Puts a character into the present row. `columnsBefore` as in PaperLine.
    void print(const Cell& cell, std::uint16_t columnsBefore);

    PaperUnits y() const { return y_; }
    PaperUnits formHeight() const { return formHeight_; }
    std::size_t jobLine() const { return jobLine_; }
    std::size_t currentJob() const { return job_; }
    std::size_t currentForm() const { return forms_.size() - 1; }
    PaperPosition position() const;
    const FormTable& forms() const { return forms_; }
    // In the order of printing: ascending by y, forms in order.
    const std::vector<PaperLine>& lines() const { return lines_; }
    // Lets go of what stands on the forms before this one; their shapes stay known.
    void forgetFormsBefore(std::size_t form);

    // Forms up to the last on which something is printed, 1 at least: a job whose last
    // line end just reaches the next form doesn't spoil a sheet.
    std::size_t printedForms() const { return printedForms_; }
    // Index range [first, last) in lines() of what stands on a form.
    std::size_t firstLineOf(std::size_t form) const;
    // Right edge of the rightmost character.
    PaperUnits contentWidth() const { return contentWidth_; }

    // The last character that a job printed at a place of its own text: job, line and
    // column count from 1; u' ' where it printed none.
    char16_t characterAt(std::size_t job, std::size_t jobLine, std::size_t column) const;

private:
    void crossPerforations();

    PaperUnits formHeight_;
    PaperUnits y_ = 0;
    std::size_t row_ = 0;
    std::size_t job_ = 0;
    std::size_t jobLine_ = 1;
    PaperUnits contentWidth_ = 0;
    std::size_t printedForms_ = 1;
    std::size_t cellsOnForm_ = 0;
    FormTable forms_;
    std::vector<PaperLine> lines_;
};

}  // namespace tarn::dotmatrix
