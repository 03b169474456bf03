#include <algorithm>
#include <array>
#include <span>
#include <string>

#include "dotmatrix/escp_interpreter.h"
#include "dotmatrix/form_file.h"
#include "dotmatrix/paper_text.h"
#include "tests/fuzz/byte_source.h"
#include "tests/fuzz/checking_spooler.h"
#include "tests/fuzz/fuzz_entries.h"

namespace tarn::fuzz {

namespace {

using namespace dotmatrix;

void require(bool holds, const char* what) {
    if (!holds) {
        broken(what);
    }
}

bool sameCells(const PaperLine& a, const PaperLine& b) {
    return std::equal(a.cells.begin(), a.cells.end(), b.cells.begin(), b.cells.end(),
                      [](const Cell& x, const Cell& y) {
                          return x.x == y.x && x.width == y.width && x.column == y.column &&
                                 x.character == y.character && x.style == y.style;
                      });
}

bool sameLine(const PaperLine& a, const PaperLine& b) {
    return a.y == b.y && a.form == b.form && a.row == b.row && a.job == b.job &&
           a.jobLine == b.jobLine && a.columnsBefore == b.columnsBefore && sameCells(a, b);
}

// From a form on.
bool sameLines(const ContinuousPaper& a, const ContinuousPaper& b, std::size_t form) {
    const auto from = [form](const ContinuousPaper& paper) {
        return std::span(paper.lines()).subspan(paper.firstLineOf(form));
    };
    return std::ranges::equal(from(a), from(b), sameLine);
}

Dialect madeDialect(ByteSource& source) {
    Dialect dialect;
    dialect.needles = source.oneIn(2) ? Needles::TwentyFour : Needles::Nine;
    dialect.codePage =
        std::array{CodePage::Page1252, CodePage::Page850, CodePage::Page860}[source.below(3)];
    dialect.formHeight = unitsPerInch * static_cast<PaperUnits>(1 + source.below(22));
    dialect.elite = source.oneIn(2);
    dialect.condensed = source.oneIn(2);
    dialect.eliteOverridesCondensed = source.oneIn(4);
    return dialect;
}

void checkPaper(const ContinuousPaper& paper, const Dialect& dialect) {
    PaperUnits y = 0;
    for (const PaperLine& line : paper.lines()) {
        require(line.y >= y, "a line above the one before");
        y = line.y;
        const Form form = paper.forms().at(line.form);
        require(line.y >= form.top && line.y < form.top + form.height, "a line off its form");
        require(paper.forms().formAt(line.y) == line.form, "a line on two forms");
        for (const Cell& cell : line.cells) {
            require(cell.x >= 0 && cell.x + cell.width <= dialect.carriageWidth,
                    "a character beside the paper");
        }
    }
    require(paper.printedForms() >= 1 && paper.printedForms() <= paper.forms().size(),
            "more printed forms than forms");
}

// One page of text for each form.
void requireText(const ContinuousPaper& paper) {
    const std::string text = textOf(paper);
    require(static_cast<std::size_t>(std::ranges::count(text, '\f')) + 1 == paper.printedForms(),
            "a form without its page of text");
}

bool formIsEmpty(const ContinuousPaper& paper) {
    return paper.lines().empty() || paper.lines().back().form < paper.currentForm();
}

// The same bytes give the same paper in one piece, byte by byte, and by a printer that
// goes on where another stopped, on an empty form.
void printJob(ByteSource& source) {
    const Dialect dialect = madeDialect(source);
    const std::size_t cut = source.byte();
    const std::string_view job = source.rest();
    ContinuousPaper whole(dialect.formHeight);
    EscpInterpreter printer(whole, dialect);
    printer.feed(job);
    checkPaper(whole, dialect);

    ContinuousPaper paper(dialect.formHeight);
    EscpInterpreter pieces(paper, dialect);
    std::size_t taken = 0;
    for (; taken < job.size() && (taken * 255 < cut * job.size() || !formIsEmpty(paper)); ++taken) {
        pieces.feed(job.substr(taken, 1));
    }
    const std::size_t start = formIsEmpty(paper) ? paper.currentForm() : whole.printedForms();
    ContinuousPaper rest(paper.position());
    EscpInterpreter next(rest, dialect, pieces.state());
    next.feed(job.substr(taken));
    for (; taken < job.size(); ++taken) {
        pieces.feed(job.substr(taken, 1));
    }
    require(sameLines(whole, paper, 0) && whole.printedForms() == paper.printedForms(),
            "a job in pieces prints otherwise");
    require(pieces.notices().kept() == printer.notices().kept(), "notices differ");
    if (start < whole.printedForms()) {
        require(sameLines(whole, rest, start), "a printer that goes on prints otherwise");
    }
    requireText(whole);
}

bool sameBox(const FormBox& a, const FormBox& b) {
    return a.x == b.x && a.y == b.y && a.width == b.width && a.height == b.height &&
           a.label == b.label;
}

bool sameText(const FormText& a, const FormText& b) {
    return a.x == b.x && a.y == b.y && a.text == b.text;
}

// A form that can be read can be written and read again.
void readFormFile(ByteSource& source) {
    const auto read = readForm(source.rest());
    const auto* form = std::get_if<FormDesign>(&read);
    if (form == nullptr) {
        require(!std::get<FormTextError>(read).what.empty(), "a fault without words");
        return;
    }
    const auto written = readForm(writeForm(*form));
    const auto* again = std::get_if<FormDesign>(&written);
    if (again == nullptr) {
        broken("a written form can't be read");
    }
    require(again->name == form->name && again->height == form->height &&
                again->picture == form->picture && again->pitch.elite == form->pitch.elite &&
                again->pitch.condensed == form->pitch.condensed,
            "a written form is set up otherwise");
    require(std::equal(form->boxes.begin(), form->boxes.end(), again->boxes.begin(),
                       again->boxes.end(), sameBox),
            "a written form has other boxes");
    require(std::equal(form->texts.begin(), form->texts.end(), again->texts.begin(),
                       again->texts.end(), sameText),
            "a written form has other texts");
}

}  // namespace

void printPaper(std::span<const std::uint8_t> bytes) {
    ByteSource source(bytes);
    if (source.oneIn(2)) {
        readFormFile(source);
    } else {
        printJob(source);
    }
}

}  // namespace tarn::fuzz
