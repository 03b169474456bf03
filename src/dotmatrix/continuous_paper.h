// The paper that has come out of the printer: one endless strip, divided into
// forms by perforations, with every character where its needles struck. x counts from
// the first print position.
//
// Lengths are whole numbers of 1/2160 inch: the pitches of these printers (10, 12,
// 15, 17.14 and 20 characters an inch) and their feeds (1/72, 1/180 and 1/216 inch)
// are all exact in it. y counts from the top of the first form.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace tarn::dotmatrix {

using PaperUnits = std::int64_t;
inline constexpr PaperUnits unitsPerInch = 2160;
// Of a printer that was switched on and not told otherwise.
inline constexpr PaperUnits lineHeight = unitsPerInch / 6;
// The needles' band of a row is 1/8 inch high, whatever the line spacing.
inline constexpr PaperUnits halfStrike = unitsPerInch / 16;

// Of paper whose perforations nobody asks about.
inline constexpr PaperUnits endlessForm = 1000 * unitsPerInch;

struct FormDesign;

struct Form {
    PaperUnits top = 0;
    PaperUnits height = 0;
};

// Where the perforations of the paper are. Forms of one height that follow each other
// take the room of one, so that a million of them cost nothing, and forms of ever changing
// heights cost eight bytes each. Never empty. Forms count from 0; those before the first
// one added are unknown.
class FormTable {
public:
    explicit FormTable(const Form& first, std::size_t index = 0);

    // The next form, below the last one; `height` is above 0.
    void append(PaperUnits height);
    void setLastHeight(PaperUnits height);

    std::size_t size() const { return size_; }
    // `index` is not below the first form's; the last form for one past the end.
    Form at(std::size_t index) const;
    Form operator[](std::size_t index) const { return at(index); }
    Form front() const { return {places_.front().top, runs_.front().height}; }
    Form back() const { return {lastTop_, runs_.back().height}; }
    // The form that holds `y`, the first or last one for what lies outside.
    std::size_t formAt(PaperUnits y) const;

private:
    // Neither a form's height nor how many are alike comes near what these hold.
    struct Run {
        std::uint32_t height = 0;
        std::uint32_t count = 1;
    };
    // Where every so many runs begin.
    struct Place {
        std::size_t form = 0;
        PaperUnits top = 0;
    };
    // The forms of one run.
    struct Stretch {
        Place begin;
        Run run;
        PaperUnits bottom() const {
            return begin.top + static_cast<PaperUnits>(run.count) * run.height;
        }
    };

    void addRun(PaperUnits height);
    // The first run from the place before on that `isIt`, or the last one.
    template <typename IsIt>
    Stretch stretchFrom(std::size_t place, IsIt isIt) const;

    std::vector<Run> runs_;
    std::vector<Place> places_;
    std::size_t size_;
    PaperUnits lastTop_;
};

// How a character is printed: the sum of what holds.
using Style = std::uint8_t;
inline constexpr Style plain = 0;
inline constexpr Style emphasised = 1;
inline constexpr Style doubleStrike = 2;
inline constexpr Style underlined = 4;
inline constexpr Style italicShear = 8;

struct Cell {
    std::int32_t x = 0;
    std::uint16_t width = 0;   // of the whole cell
    std::uint16_t column = 1;  // printed characters since the left margin, from 1
    char16_t character = u' ';
    Style style = plain;
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
    std::vector<Cell> cells;  // in the order of printing; an overprint comes later
};

// Where the printer is on the paper, for going on from there later.
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

    // A new job goes on where the paper is; the first job is 1.
    void startJob();
    // Feeds one row of `distance` (0 and up), over perforations where it must.
    void feedRow(PaperUnits distance);
    // Feeds without a new row being counted, as a fine adjustment does.
    void feedFine(PaperUnits distance);
    void feedToNextForm();
    // The top of a form on which nothing is printed.
    bool atFreshForm() const;
    // The present row becomes the first of a form of this height (above 0), and so do
    // all that follow it. What is in the row goes along.
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
    // Lets go of what is on the forms before this one; their shapes stay known.
    void forgetFormsBefore(std::size_t form);

    // Forms up to the last on which something is printed, 1 at least: a job whose last
    // line end just reaches the next form doesn't spoil a sheet.
    std::size_t printedForms() const { return printedForms_; }
    // Index range [first, last) in lines() of what is on a form.
    std::size_t firstLineOf(std::size_t form) const;
    // Right edge of the rightmost character since the paper was last changed.
    PaperUnits contentWidth() const { return contentWidth_; }
    // What follows is printed on another paper.
    void changePaper() { contentWidth_ = 0; }

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

// One form of the paper with what is printed on it: what is drawn, written and searched
// page by page.
struct FormPage {
    std::size_t form = 0;  // from 0
    Form shape{};
    std::vector<PaperLine> lines;  // in the order of printing
    // What was pre-printed on it, where the jobs say so.
    std::shared_ptr<const FormDesign> design{};
    // Right edge of all that is printed and pre-printed on the paper that the form is of.
    PaperUnits contentWidth = 0;
};

FormPage pageOf(const ContinuousPaper& paper, std::size_t form);

// Paper to be written to a file; it must not change meanwhile.
struct PaperPages {
    std::size_t count = 0;  // forms up to the last one that is printed on
    std::function<std::shared_ptr<const FormPage>(std::size_t form)> page;
};

// `paper` must outlive the result.
PaperPages pagesOf(const ContinuousPaper& paper);

}  // namespace tarn::dotmatrix
