#include "dotmatrix/continuous_paper.h"

#include <algorithm>
#include <utility>

namespace tarn::dotmatrix {

ContinuousPaper::ContinuousPaper(PaperUnits formHeight)
    : formHeight_(std::max<PaperUnits>(formHeight, 1)) {
    startForm(0);
}

void ContinuousPaper::startJob(std::string name) {
    jobs_.push_back(std::move(name));
    jobLine_ = 1;
}

void ContinuousPaper::startForm(PaperUnits top) {
    forms_.push_back({top, formHeight_});
}

void ContinuousPaper::crossPerforations() {
    while (y_ >= forms_.back().top + forms_.back().height) {
        startForm(forms_.back().top + forms_.back().height);
        row_ = 0;
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
        forms_.back().height = height;
        return;
    }
    forms_.back().height = y_ - forms_.back().top;
    startForm(y_);
    row_ = 0;
    for (auto line = lines_.rbegin(); line != lines_.rend() && line->y == y_; ++line) {
        line->form = forms_.size() - 1;
        line->row = 0;
    }
}

void ContinuousPaper::print(const Cell& cell, std::uint16_t columnsBefore) {
    const bool goesOn = !lines_.empty() && lines_.back().y == y_ && lines_.back().row == row_ &&
                        lines_.back().job == currentJob() && lines_.back().jobLine == jobLine_ &&
                        lines_.back().columnsBefore == columnsBefore;
    if (!goesOn) {
        PaperLine line;
        line.y = y_;
        line.form = forms_.size() - 1;
        line.row = row_;
        line.job = currentJob();
        line.jobLine = jobLine_;
        line.columnsBefore = columnsBefore;
        lines_.push_back(std::move(line));
    }
    lines_.back().cells.push_back(cell);
    contentWidth_ = std::max<PaperUnits>(contentWidth_, cell.x + cell.width);
}

std::size_t ContinuousPaper::printedForms() const {
    return lines_.empty() ? 1 : lines_.back().form + 1;
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
