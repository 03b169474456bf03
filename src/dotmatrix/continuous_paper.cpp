#include "dotmatrix/continuous_paper.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace tarn::dotmatrix {

namespace {

constexpr std::size_t runsBetweenPlaces = 64;
constexpr std::uint32_t mostAlike = std::numeric_limits<std::uint32_t>::max();

}  // namespace

FormTable::FormTable(const Form& first, std::size_t index) : size_(index), lastTop_(first.top) {
    addRun(first.height);
}

// Its one form is the last of all, at lastTop_.
void FormTable::addRun(PaperUnits height) {
    if (runs_.size() % runsBetweenPlaces == 0) {
        places_.push_back({.form = size_, .top = lastTop_});
    }
    runs_.push_back({.height = static_cast<std::uint32_t>(height)});
    ++size_;
}

void FormTable::append(PaperUnits height) {
    Run& last = runs_.back();
    lastTop_ += last.height;
    if (last.height == height && last.count < mostAlike) {
        ++last.count;
        ++size_;
    } else {
        addRun(height);
    }
}

void FormTable::setLastHeight(PaperUnits height) {
    Run& last = runs_.back();
    if (last.count == 1) {
        last.height = static_cast<std::uint32_t>(height);
        return;
    }
    --last.count;
    --size_;
    addRun(height);
}

template <typename IsIt>
FormTable::Stretch FormTable::stretchFrom(std::size_t place, IsIt isIt) const {
    std::size_t index = place * runsBetweenPlaces;
    Stretch stretch{.begin = places_[place], .run = runs_[index]};
    while (!isIt(stretch) && index + 1 < runs_.size()) {
        stretch.begin = {.form = stretch.begin.form + stretch.run.count, .top = stretch.bottom()};
        stretch.run = runs_[++index];
    }
    return stretch;
}

Form FormTable::at(std::size_t index) const {
    const auto after = std::ranges::upper_bound(places_, index, {}, &Place::form);
    const std::size_t place =
        after == places_.begin() ? 0 : static_cast<std::size_t>(after - places_.begin()) - 1;
    const Stretch found = stretchFrom(place, [index](const Stretch& stretch) {
        return index < stretch.begin.form + stretch.run.count;
    });
    const std::size_t within = std::min(index, size_ - 1) - found.begin.form;
    return {found.begin.top + static_cast<PaperUnits>(within) * found.run.height, found.run.height};
}

std::size_t FormTable::formAt(PaperUnits y) const {
    const auto after = std::ranges::upper_bound(places_, y, {}, &Place::top);
    const std::size_t place =
        after == places_.begin() ? 0 : static_cast<std::size_t>(after - places_.begin()) - 1;
    const Stretch found =
        stretchFrom(place, [y](const Stretch& stretch) { return y < stretch.bottom(); });
    const PaperUnits within = std::max<PaperUnits>(0, (y - found.begin.top) / found.run.height);
    return found.begin.form +
           std::min<std::size_t>(static_cast<std::size_t>(within), found.run.count - 1U);
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

bool ContinuousPaper::atFreshForm() const {
    return y_ == forms_.back().top && (lines_.empty() || lines_.back().form != currentForm());
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
    FormPage page{.form = form,
                  .shape = paper.forms().at(form),
                  .lines = {},
                  .design = {},
                  .contentWidth = paper.contentWidth()};
    const auto& lines = paper.lines();
    for (std::size_t i = paper.firstLineOf(form); i < lines.size() && lines[i].form == form; ++i) {
        page.lines.push_back(lines[i]);
    }
    return page;
}

PaperPages pagesOf(const ContinuousPaper& paper) {
    return {.count = paper.printedForms(), .page = [&paper](std::size_t form) {
                return std::make_shared<const FormPage>(pageOf(paper, form));
            }};
}

}  // namespace tarn::dotmatrix
