#include "dotmatrix/continuous_paper.h"

#include <algorithm>
#include <utility>

namespace tarn::dotmatrix {

FormTable::FormTable(const Form& first, std::size_t index)
    : runs_{Run{.first = index, .count = 1, .top = first.top, .height = first.height}} {}

void FormTable::append(PaperUnits height) {
    const Form last = back();
    if (runs_.back().height == height) {
        ++runs_.back().count;
    } else {
        runs_.push_back(
            {.first = size(), .count = 1, .top = last.top + last.height, .height = height});
    }
}

void FormTable::setLastHeight(PaperUnits height) {
    if (runs_.back().count == 1) {
        runs_.back().height = height;
        return;
    }
    const Form last = back();
    --runs_.back().count;
    runs_.push_back({.first = size(), .count = 1, .top = last.top, .height = height});
}

Form FormTable::at(std::size_t index) const {
    const auto after =
        std::upper_bound(runs_.begin(), runs_.end(), index,
                         [](std::size_t wanted, const Run& run) { return wanted < run.first; });
    const Run& run = after == runs_.begin() ? *after : *(after - 1);
    const std::size_t place = std::min(index, run.first + run.count - 1) - run.first;
    return {run.top + static_cast<PaperUnits>(place) * run.height, run.height};
}

std::size_t FormTable::formAt(PaperUnits y) const {
    const auto after =
        std::upper_bound(runs_.begin(), runs_.end(), y,
                         [](PaperUnits wanted, const Run& run) { return wanted < run.top; });
    const Run& run = after == runs_.begin() ? *after : *(after - 1);
    const PaperUnits place = std::max<PaperUnits>(0, (y - run.top) / run.height);
    return run.first + std::min(static_cast<std::size_t>(place), run.count - 1);
}

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

FormPage pageOf(const ContinuousPaper& paper, std::size_t form) {
    FormPage page{.form = form, .shape = paper.forms().at(form), .lines = {}};
    const auto& lines = paper.lines();
    for (std::size_t i = paper.firstLineOf(form); i < lines.size() && lines[i].form == form; ++i) {
        page.lines.push_back(lines[i]);
    }
    return page;
}

PaperPages pagesOf(const ContinuousPaper& paper) {
    return {.count = paper.printedForms(),
            .contentWidth = paper.contentWidth(),
            .page = [&paper](std::size_t form) {
                return std::make_shared<const FormPage>(pageOf(paper, form));
            }};
}

}  // namespace tarn::dotmatrix
