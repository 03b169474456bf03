#include "dotmatrix/continuous_paper.h"

#include <algorithm>
#include <utility>

namespace tarn::dotmatrix {

ContinuousPaper::ContinuousPaper(PaperUnits formHeight)
    : formHeight_(std::max<PaperUnits>(formHeight, 1)), forms_({0, formHeight_}) {}

ContinuousPaper::ContinuousPaper(const PaperPosition& position)
    : formHeight_(position.formHeight),
      y_(position.y),
      row_(position.row),
      job_(position.job),
      jobLine_(position.jobLine),
      forms_(position.shape, position.form) {}

PaperPosition ContinuousPaper::position() const {
    return {.form = currentForm(),
            .shape = forms_.back(),
            .formHeight = formHeight_,
            .y = y_,
            .row = row_,
            .job = job_,
            .jobLine = jobLine_};
}

void ContinuousPaper::startJob() {
    ++job_;
    jobLine_ = 1;
}

void ContinuousPaper::crossPerforations() {
    while (y_ >= forms_.back().top + forms_.back().height) {
        forms_.append(formHeight_);
        row_ = 0;
        cellsOnForm_ = 0;
    }
}

void ContinuousPaper::feedRow(PaperUnits distance) {
    y_ += distance;
    ++row_;
    ++jobLine_;
    crossPerforations();
}

void ContinuousPaper::feedFine(PaperUnits distance) {
    y_ += distance;
    crossPerforations();
}

void ContinuousPaper::feedToNextForm() {
    y_ = forms_.back().top + forms_.back().height;
    ++jobLine_;
    crossPerforations();
}

void ContinuousPaper::setFormHeight(PaperUnits height) {
    formHeight_ = height;
    if (y_ == forms_.back().top) {
        forms_.setLastHeight(height);
        return;
    }
    forms_.setLastHeight(y_ - forms_.back().top);
    forms_.append(height);
    row_ = 0;
    cellsOnForm_ = 0;
    for (auto line = lines_.rbegin(); line != lines_.rend() && line->y == y_; ++line) {
        line->form = currentForm();
        line->row = 0;
        cellsOnForm_ += line->cells.size();
        printedForms_ = forms_.size();
    }
}

void ContinuousPaper::forgetFormsBefore(std::size_t form) {
    lines_.erase(lines_.begin(), lines_.begin() + static_cast<std::ptrdiff_t>(firstLineOf(form)));
}

void ContinuousPaper::print(const Cell& cell, std::uint16_t columnsBefore) {
    const bool goesOn = !lines_.empty() && lines_.back().y == y_ && lines_.back().row == row_ &&
                        lines_.back().job == currentJob() && lines_.back().jobLine == jobLine_ &&
                        lines_.back().columnsBefore == columnsBefore;
    contentWidth_ = std::max<PaperUnits>(contentWidth_, cell.x + cell.width);
    if (++cellsOnForm_ > mostCellsOnForm) {
        return;
    }
    if (!goesOn) {
        PaperLine line;
        line.y = y_;
        line.form = currentForm();
        line.row = row_;
        line.job = currentJob();
        line.jobLine = jobLine_;
        line.columnsBefore = columnsBefore;
        lines_.push_back(std::move(line));
    }
    lines_.back().cells.push_back(cell);
    printedForms_ = forms_.size();
}

std::size_t ContinuousPaper::firstLineOf(std::size_t form) const {
    const auto first = std::partition_point(
        lines_.begin(), lines_.end(), [form](const PaperLine& line) { return line.form < form; });
    return static_cast<std::size_t>(first - lines_.begin());
}

char16_t ContinuousPaper::characterAt(std::size_t job, std::size_t jobLine,
                                      std::size_t column) const {
    auto line = std::partition_point(lines_.begin(), lines_.end(), [&](const PaperLine& candidate) {
        return candidate.job < job || (candidate.job == job && candidate.jobLine < jobLine);
    });
    char16_t found = u' ';
    for (; line != lines_.end() && line->job == job && line->jobLine == jobLine; ++line) {
        for (const Cell& cell : line->cells) {
            if (cell.column == line->columnsBefore + column) {
                found = cell.character;
            }
        }
    }
    return found;
}

}  // namespace tarn::dotmatrix
