// The paper that has come out of the printer: one endless strip, parted into
// forms by perforations, with every character where its needles struck.
//
// Lengths are whole numbers of 1/2160 inch: the pitches of these printers (10, 12,
// 15, 17.14 and 20 characters an inch) and their feeds (1/72, 1/180 and 1/216 inch)
// are all exact in it. x counts from the first print position, y from the top of
// the first form.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace tarn::dotmatrix {

using PaperUnits = std::int64_t;
inline constexpr PaperUnits kUnitsPerInch = 2160;

enum Style : std::uint8_t {
    kPlain = 0,
    kEmphasised = 1,
    kDoubleStrike = 2,
    kUnderlined = 4,
    kItalic = 8,
};

struct Cell {
    std::int32_t x = 0;
    std::uint16_t width = 0;   // of the whole cell
    std::uint16_t column = 1;  // printed characters since the left margin, from 1
    char16_t character = u' ';
    std::uint8_t style = kPlain;
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

struct Form {
    PaperUnits top = 0;
    PaperUnits height = 0;
};

class ContinuousPaper {
public:
    // `formHeight` is above 0; the paper begins with one empty form.
    explicit ContinuousPaper(PaperUnits formHeight);

    // A new job goes on where the paper stands; the first job is 1.
    void startJob(std::string name);
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
    std::size_t currentJob() const { return jobs_.size(); }
    const std::vector<std::string>& jobs() const { return jobs_; }
    const std::vector<Form>& forms() const { return forms_; }
    // In the order of printing: ascending by y, forms in order.
    const std::vector<PaperLine>& lines() const { return lines_; }

    // Forms up to the last on which something is printed, 1 at least: a job whose last
    // line end just reaches the next form doesn't spoil a sheet.
    std::size_t printedForms() const;
    // Index range [first, last) in lines() of what stands on a form.
    std::size_t firstLineOf(std::size_t form) const;
    // Right edge of the rightmost character.
    PaperUnits contentWidth() const { return contentWidth_; }

    // The last character that a job printed at a place of its own text: job, line and
    // column count from 1; u' ' where it printed none.
    char16_t characterAt(std::size_t job, std::size_t jobLine, std::size_t column) const;

private:
    void startForm(PaperUnits top);
    void crossPerforations();

    PaperUnits formHeight_;
    PaperUnits y_ = 0;
    std::size_t row_ = 0;
    std::size_t jobLine_ = 1;
    PaperUnits contentWidth_ = 0;
    std::vector<std::string> jobs_;
    std::vector<Form> forms_;
    std::vector<PaperLine> lines_;
};

}  // namespace tarn::dotmatrix
