#include "printer/paper/told_cuts.h"

#include <algorithm>

namespace tarn::dotmatrix {
namespace {

// From the column on to the end of its box or of the print; a whole row's begin where nothing
// of the text printed.
PaperRegion regionOf(const CutText& cut, const FormPage& page, const FormDesign& design,
                     std::size_t job, PaperUnits y) {
    PaperRegion region{0, y, unitsPerInch, y + lineHeight};
    for (const PaperLine& line : page.lines) {
        if (line.job != job || line.y != y) {
            continue;
        }
        const auto first = std::ranges::find_if(line.cells, [&cut](const Cell& cell) {
            return static_cast<int>(cell.column) >= cut.column;
        });
        if (first != line.cells.end()) {
            const FormBox* box =
                boxAt(design.boxes, first->x + first->width / 2, y - page.shape.top + halfStrike);
            const Cell& last = line.cells.back();
            region.left = first->x;
            region.right = box != nullptr ? box->x + box->width : last.x + last.width;
        }
    }
    return region;
}

PaperFault faultOf(const CutText& cut, const FormPage& page, const FormDesign& design,
                   const RollJob& job, std::size_t number) {
    const PaperUnits y = job.y + std::max(0, cut.line - 1) * lineHeight;
    PaperFault fault{.kind = PaperFault::Kind::Cut,
                     .region = regionOf(cut, page, design, number, y),
                     .form = page.form,
                     .job = number,
                     .row = static_cast<std::size_t>(std::max(0, cut.line)),
                     .column = static_cast<std::size_t>(std::max(0, cut.column)),
                     .text = QString::fromStdString(cut.what)};
    const FormBox* box =
        boxAt(design.boxes, fault.region.left + 1, y - page.shape.top + halfStrike);
    fault.box = box != nullptr ? QString::fromStdString(box->label) : QString();
    return fault;
}

}  // namespace

std::vector<PaperFault> cutsOn(const FormPage& page, const FormDesign& design,
                               const std::vector<RollJob>& jobs) {
    std::vector<PaperFault> faults;
    const auto first = std::ranges::lower_bound(jobs, page.form, {}, &RollJob::form);
    for (auto job = first; job != jobs.end() && job->form == page.form; ++job) {
        if (!job->shows || !job->paper.cuts) {
            continue;
        }
        const auto number = static_cast<std::size_t>(job - jobs.begin()) + 1;
        for (const CutText& cut : *job->paper.cuts) {
            faults.push_back(faultOf(cut, page, design, *job, number));
        }
    }
    return faults;
}

}  // namespace tarn::dotmatrix
