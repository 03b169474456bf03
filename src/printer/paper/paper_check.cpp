#include "printer/paper/paper_check.h"

#include <algorithm>
#include <iterator>

#include "printer/paper/told_cuts.h"

namespace tarn::dotmatrix {

namespace {

// Codes, dates and amounts fill their boxes by their nature, and so do short texts.
constexpr PaperUnits fewestColumns = 12;
constexpr PaperUnits blanksWithin = 2;  // of one text, between its words

// The printed characters of a row from left to right, each with the box that holds it.
struct Placed {
    Cell cell;
    const FormBox* box = nullptr;
};

// A form's last boxes may lie below its perforation.
const FormBox* boxBelow(const FormDesign& design, PaperUnits x, PaperUnits y) {
    const FormBox* box = boxAt(design.boxes, x, y);
    return box != nullptr ? box : boxAt(design.boxes, x, y + design.height);
}

// The words that the document prints on the bare paper are left out.
std::vector<Placed> placedIn(const PaperLine& line, const FormDesign& design, PaperUnits top) {
    std::vector<Placed> row;
    for (const Cell& cell : line.cells) {
        const PaperUnits x = cell.x + cell.width / 2;
        const PaperUnits y = line.y - top + halfStrike;
        const FormBox* box = boxBelow(design, x, y);
        if (box != nullptr || boxAt(design.ownWords, x, y) == nullptr) {
            row.push_back({cell, box});
        }
    }
    std::stable_sort(row.begin(), row.end(),
                     [](const Placed& a, const Placed& b) { return a.cell.x < b.cell.x; });
    return row;
}

PaperUnits gapAfter(const Placed& one, const Placed& next) {
    return next.cell.x - one.cell.x - one.cell.width;
}

using Run = std::pair<std::size_t, std::size_t>;  // first and past the last

// Characters in the same box, or in none and near each other.
std::vector<Run> runsOf(const std::vector<Placed>& row) {
    std::vector<Run> runs;
    for (std::size_t i = 0; i < row.size(); ++i) {
        const bool goesOn = i > 0 && row[i].box == row[i - 1].box &&
                            (row[i].box != nullptr ||
                             gapAfter(row[i - 1], row[i]) <= blanksWithin * row[i].cell.width);
        if (goesOn) {
            runs.back().second = i + 1;
        } else {
            runs.emplace_back(i, i + 1);
        }
    }
    return runs;
}

QString textOf(const std::vector<Placed>& row, const Run& run) {
    QString text;
    for (std::size_t i = run.first; i < run.second; ++i) {
        if (i > run.first) {
            const PaperUnits blanks = gapAfter(row[i - 1], row[i]) / row[i].cell.width;
            text += QString(static_cast<qsizetype>(std::max<PaperUnits>(0, blanks)), u' ');
        }
        text += QChar(row[i].cell.character);
    }
    return text;
}

// The box that a text outside of it touches.
const FormBox* leftBox(const std::vector<Placed>& row, const Run& run) {
    if (run.first > 0 && gapAfter(row[run.first - 1], row[run.first]) <= 0) {
        return row[run.first - 1].box;
    }
    if (run.second < row.size() && gapAfter(row[run.second - 1], row[run.second]) <= 0) {
        return row[run.second].box;
    }
    return nullptr;
}

// What is no word and no number is a line that the document draws, or parts two fields.
bool tellsSomething(const QString& text) {
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c.isLetterOrNumber(); });
}

bool fills(const std::vector<Placed>& row, const Run& run, const QString& text) {
    const FormBox& box = *row[run.first].box;
    const Cell& first = row[run.first].cell;
    const Cell& last = row[run.second - 1].cell;
    return box.width >= fewestColumns * first.width && first.x - box.x < first.width &&
           box.x + box.width - last.x - last.width < last.width &&
           std::any_of(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
}

void judge(const std::vector<Placed>& row, const Run& run, PaperFault fault,
           std::vector<PaperFault>& faults) {
    fault.text = textOf(row, run);
    if (!tellsSomething(fault.text)) {
        return;
    }
    const FormBox* box = row[run.first].box;
    if (box == nullptr) {
        box = leftBox(row, run);
        fault.kind = box != nullptr ? PaperFault::Kind::OverEdge : PaperFault::Kind::Outside;
    } else if (fills(row, run, fault.text)) {
        fault.kind = PaperFault::Kind::Full;
    } else {
        return;
    }
    fault.box = box != nullptr ? QString::fromStdString(box->label) : QString();
    const Cell& last = row[run.second - 1].cell;
    fault.region.left = row[run.first].cell.x;
    fault.region.right = last.x + last.width;
    fault.column = row[run.first].cell.column;
    faults.push_back(fault);
}

}  // namespace

QString describe(const PaperFault& fault) {
    switch (fault.kind) {
        case PaperFault::Kind::Outside:
            return QStringLiteral("fora das caixas");
        case PaperFault::Kind::OverEdge:
            return QStringLiteral("passa da borda da caixa");
        case PaperFault::Kind::Full:
            return QStringLiteral("caixa cheia: o fim pode faltar");
        case PaperFault::Kind::Cut:
            return QStringLiteral("cortado ao imprimir");
    }
    return {};
}

const FormDesign* designUnder(const FormPage& page, const FormDesign* underAll) {
    return page.design ? page.design.get() : underAll;
}

std::optional<std::vector<PaperFault>> faultsOn(const FormPage& page, const FormDesign* underAll,
                                                const std::vector<RollJob>& jobs) {
    const FormDesign* design = designUnder(page, underAll);
    if (design == nullptr || design->boxes.empty()) {
        return std::nullopt;
    }
    std::vector<PaperFault> faults;
    for (const PaperLine& line : page.lines) {
        const std::vector<Placed> row = placedIn(line, *design, page.shape.top);
        const PaperUnits down = line.y - page.shape.top;
        for (const Run& run : runsOf(row)) {
            judge(row, run,
                  {.region = {0, line.y, 0, line.y + lineHeight},
                   .form = page.form,
                   .job = line.job,
                   .row = static_cast<std::size_t>(down / lineHeight) + 1},
                  faults);
        }
    }
    // Who tells what it cut leaves nothing to be guessed.
    std::erase_if(faults, [&jobs](const PaperFault& fault) {
        return fault.kind == PaperFault::Kind::Full && fault.job > 0 &&
               jobs[fault.job - 1].paper.cuts.has_value();
    });
    std::ranges::move(cutsOn(page, *design, jobs), std::back_inserter(faults));
    return faults;
}

std::optional<std::vector<PaperFault>> faultsOfJob(PaperRoll& roll, std::size_t job,
                                                   const FormDesign* underAll) {
    const auto& jobs = roll.jobs();
    const std::size_t last =
        job + 1 < jobs.size() ? jobs[job + 1].form : roll.forms().formAt(roll.headY());
    std::optional<std::vector<PaperFault>> faults;
    for (std::size_t form = jobs[job].form; form <= last; ++form) {
        auto found = faultsOn(*roll.page(form), underAll, jobs);
        if (!found) {
            continue;
        }
        std::erase_if(*found, [job](const PaperFault& fault) { return fault.job != job + 1; });
        if (!faults) {
            faults.emplace();
        }
        std::ranges::move(*found, std::back_inserter(*faults));
    }
    return faults;
}

}  // namespace tarn::dotmatrix
