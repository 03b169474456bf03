#include "forms/job_recogniser.h"

#include <algorithm>
#include <set>
#include <utility>

#include "dotmatrix/continuous_paper.h"
#include "dotmatrix/escp_interpreter.h"
#include "forms/layout_forms.h"
#include "slips/slip_layouts.h"

namespace tarn::dotmatrix {

namespace {

constexpr int mostItemLines = 100;
// A document fills so many of its boxes at least, and a third of them where there are few;
// less may be anybody's text.
constexpr std::size_t fewestBoxes = 5;
constexpr std::size_t shareOfBoxes = 3;

struct Printed {
    std::vector<PaperLine> lines;  // from the top of the form on
    PaperUnits height = 0;
};

Printed printed(std::string_view setUp, std::string_view job) {
    ContinuousPaper paper(endlessForm);
    EscpInterpreter printer(paper, Dialect{.formHeight = endlessForm});
    if (!setUp.empty()) {
        printer.startJob();
        printer.feed(setUp);
    }
    printer.startJob();
    printer.feed(job);
    Printed result{paper.lines(), paper.y()};
    // What the set-up job leaves on the paper is no document's.
    std::erase_if(result.lines,
                  [&paper](const PaperLine& line) { return line.job != paper.currentJob(); });
    return result;
}

// The boxes that hold text; nothing where some text is in none.
std::optional<std::size_t> boxesFilled(const FormDesign& form, const Printed& job, bool onSheets) {
    std::set<const FormBox*> filled;
    for (const PaperLine& line : job.lines) {
        const PaperUnits y = (onSheets ? line.y % form.height : line.y) + halfStrike;
        for (const Cell& cell : line.cells) {
            const PaperUnits x = cell.x + cell.width / 2;
            const FormBox* box = boxAt(form.boxes, x, y);
            if (box != nullptr) {
                filled.insert(box);
            } else if (boxAt(form.ownWords, x, y) == nullptr) {
                return std::nullopt;
            }
        }
    }
    return filled.size();
}

bool fits(const FormDesign& form, JobDocument document, const Printed& job) {
    const bool labels = document == JobDocument::Labels;
    const auto filled = boxesFilled(form, job, labels);
    const std::size_t wanted =
        labels ? fewestBoxes : std::max(fewestBoxes, form.boxes.size() / shareOfBoxes);
    return filled && *filled >= wanted;
}

// Which bank a slip is for, its bytes don't tell: the banks' forms are alike.
std::shared_ptr<const FormDesign> slipOfAnyBank(bool wallet57) {
    auto form = formDrawing(slipFormName(slipBanks.front(), wallet57));
    form->name = wallet57 ? "Boleto: carteira 57" : "Boleto: outras carteiras";
    return std::make_shared<const FormDesign>(std::move(*form));
}

}  // namespace

// A form at whose panel the pitch must be set isn't known by bytes, nor is one whose
// documents have any length.
void JobRecogniser::prepare() {
    for (const CatalogueForm& known : formCatalogue()) {
        const bool note = known.document == JobDocument::Note;
        if (known.document == JobDocument::Slip || known.document == JobDocument::OrderSheet) {
            continue;
        }
        auto form =
            shelf_.formOf({known.document, known.name, note ? std::optional(1) : std::nullopt});
        if (!form->pitch.condensed && !form->pitch.elite) {
            candidates_.push_back({known.name, known.document, std::move(form)});
        }
    }
    for (const bool wallet57 : {true, false}) {
        auto form = slipOfAnyBank(wallet57);
        candidates_.push_back({form->name, JobDocument::Slip, std::move(form)});
    }
}

// Nothing where no document of the form is that high.
std::shared_ptr<const FormDesign> JobRecogniser::fitted(const Candidate& candidate,
                                                        PaperUnits height) {
    const FormDesign& form = *candidate.form;
    if (candidate.document == JobDocument::Labels) {
        return candidate.form;
    }
    if (candidate.document != JobDocument::Note) {
        return height == form.height ? candidate.form : nullptr;
    }
    const PaperUnits more = height - form.height;
    const PaperUnits lines = 1 + more / lineHeight;
    if (more % lineHeight != 0 || lines < 0 || lines > mostItemLines) {
        return nullptr;
    }
    return shelf_.formOf({candidate.document, candidate.name, static_cast<int>(lines)});
}

std::shared_ptr<const FormDesign> JobRecogniser::formOf(std::string_view setUp,
                                                        std::string_view job) {
    if (job.size() > mostBytes) {
        return nullptr;
    }
    if (candidates_.empty()) {
        prepare();
    }
    const Printed print = printed(setUp, job);
    std::shared_ptr<const FormDesign> only;
    for (const Candidate& candidate : candidates_) {
        if (candidate.form->setUp != setUp) {
            continue;
        }
        const auto form = fitted(candidate, print.height);
        if (form && fits(*form, candidate.document, print)) {
            if (only) {
                return nullptr;
            }
            only = form;
        }
    }
    return only;
}

}  // namespace tarn::dotmatrix
