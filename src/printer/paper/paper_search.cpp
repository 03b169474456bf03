#include "printer/paper/paper_search.h"

#include <algorithm>
#include <vector>

#include "dotmatrix/paper_text.h"

namespace tarn::dotmatrix {

namespace {

QString folded(const QString& text) {
    QString out = text;
    for (QChar& c : out) {
        const QString parts = c.decomposition();
        c = (parts.isEmpty() || c.decompositionTag() != QChar::Canonical ? c : parts.front())
                .toLower();
    }
    return out;
}

// All rows of a form: what is in it, and where.
struct Row {
    std::u16string text;
    std::vector<const Cell*> cells;
    PaperUnits y = 0;
    std::size_t row = 0;
};

std::vector<Row> rowsOf(const FormPage& page) {
    std::vector<Row> rows;
    for (const PaperLine& line : page.lines) {
        if (rows.empty() || rows.back().row != line.row) {
            rows.push_back({{}, {}, line.y, line.row});
        }
        for (const Cell& cell : line.cells) {
            putInto(rows.back().text, cell);
            rows.back().cells.push_back(&cell);
        }
    }
    return rows;
}

PaperRegion regionOf(const Row& row, qsizetype at, qsizetype length) {
    PaperRegion region{.left = -1, .top = row.y, .right = 0, .bottom = row.y + lineHeight};
    for (const Cell* cell : row.cells) {
        const qsizetype place = cell->column - 1;
        if (place >= at && place < at + length) {
            region.left = region.left < 0 ? cell->x : std::min<PaperUnits>(region.left, cell->x);
            region.right = std::max<PaperUnits>(region.right, cell->x + cell->width);
        }
    }
    return region;
}

}  // namespace

PaperSearch::PaperSearch(PaperRoll& roll, const QString& text, Direction direction,
                         std::optional<PaperRegion> from)
    : roll_(roll),
      text_(folded(text)),
      direction_(direction),
      from_(from),
      count_(roll.printedForms()),
      form_(0),
      left_(count_) {
    if (from_) {
        form_ = std::min(roll.forms().formAt(from_->top), count_ - 1);
        ++left_;  // the form of the last find is looked at twice: behind it and before it
    } else if (direction_ == Direction::Up) {
        form_ = count_ - 1;
    }
    bounded_ = from_.has_value();
}

PaperSearch::Step PaperSearch::step(std::size_t forms) {
    for (; forms > 0; --forms) {
        if (left_ == 0) {
            return Step::NotThere;
        }
        --left_;
        if (lookAt(form_)) {
            return Step::Found;
        }
        bounded_ = false;
        if (direction_ == Direction::Down) {
            wrapped_ |= form_ + 1 == count_;
            form_ = (form_ + 1) % count_;
        } else {
            wrapped_ |= form_ == 0;
            form_ = (form_ + count_ - 1) % count_;
        }
    }
    return left_ == 0 ? Step::NotThere : Step::Searching;
}

bool PaperSearch::better(const PaperRegion& candidate) const {
    if (!bounded_) {
        return true;
    }
    if (direction_ == Direction::Down) {
        return candidate.top > from_->top ||
               (candidate.top == from_->top && candidate.left > from_->left);
    }
    return candidate.top < from_->top ||
           (candidate.top == from_->top && candidate.left < from_->left);
}

bool PaperSearch::lookAt(std::size_t form) {
    const auto page = roll_.page(form);
    bool any = false;
    for (const Row& row : rowsOf(*page)) {
        const QString text = folded(QString::fromStdU16String(row.text));
        for (qsizetype at = text.indexOf(text_); at >= 0; at = text.indexOf(text_, at + 1)) {
            const PaperRegion candidate = regionOf(row, at, text_.size());
            if (!better(candidate)) {
                continue;
            }
            found_ = candidate;
            any = true;
            if (direction_ == Direction::Down) {
                return true;
            }
        }
    }
    return any;
}

PaperCount::PaperCount(PaperRoll& roll, const QString& text)
    : roll_(roll), text_(folded(text)), count_(roll.printedForms()) {}

bool PaperCount::step(std::size_t forms) {
    for (; forms > 0 && form_ < count_; --forms, ++form_) {
        const auto page = roll_.page(form_);
        for (const Row& row : rowsOf(*page)) {
            const QString text = folded(QString::fromStdU16String(row.text));
            for (qsizetype at = text.indexOf(text_); at >= 0; at = text.indexOf(text_, at + 1)) {
                const PaperRegion region = regionOf(row, at, text_.size());
                places_.push_back({region.top, region.left});
            }
        }
    }
    return form_ == count_;
}

std::size_t PaperCount::indexOf(const PaperRegion& found) const {
    const Place place{found.top, found.left};
    return static_cast<std::size_t>(std::ranges::lower_bound(places_, place) - places_.begin()) + 1;
}

}  // namespace tarn::dotmatrix
