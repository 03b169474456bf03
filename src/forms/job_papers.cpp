#include "forms/job_papers.h"

#include <optional>
#include <utility>
#include <vector>

#include "dotmatrix/set_up.h"

namespace tarn::dotmatrix {

namespace {

std::optional<std::vector<CutText>> cutTextsOf(const JobKind& kind) {
    if (!kind.cuts) {
        return std::nullopt;
    }
    std::vector<CutText> cuts;
    for (const JobCut& cut : *kind.cuts) {
        cuts.push_back({cut.line, cut.column, cut.what});
    }
    return cuts;
}

}  // namespace

JobPaper JobPapers::told(const JobKind& kind) {
    setUp_.clear();
    return {.form = shelf_.formOf(kind), .told = true, .cuts = cutTextsOf(kind)};
}

JobPaper JobPapers::known(std::string_view job) {
    if (onlySetsUp(job)) {
        setUp_ = job;
        return {};
    }
    auto form = recogniser_.formOf(std::exchange(setUp_, {}), job);
    const bool found = form != nullptr;
    return {.form = std::move(form), .told = !found};
}

JobPaper JobPapers::unknown() {
    setUp_.clear();
    return {};
}

}  // namespace tarn::dotmatrix
