// Finds a text on the paper, a few forms at a time, so that the window stays awake.
// Capitals and accents make no difference.
#pragma once

#include <QString>
#include <compare>
#include <optional>
#include <vector>

#include "printer/paper/paper_region.h"

namespace tarn::dotmatrix {

class PaperSearch {
public:
    enum class Direction { Down, Up };
    enum class Step { Searching, Found, NotThere };

    // From behind (or, upwards, before) `from` around the whole paper; `from` is what was
    // found last, or nothing for the top (upwards, the end). `text` is not empty.
    PaperSearch(PaperRoll& roll, const QString& text, Direction direction,
                std::optional<PaperRegion> from);

    // Looks at up to `forms` forms (1 and up).
    Step step(std::size_t forms);
    const PaperRegion& found() const { return found_; }
    // The search went past an end of the paper.
    bool wrapped() const { return wrapped_; }

private:
    bool lookAt(std::size_t form);
    bool better(const PaperRegion& candidate) const;

    PaperRoll& roll_;
    QString text_;
    Direction direction_;
    std::optional<PaperRegion> from_;
    std::size_t count_;    // forms on the paper
    std::size_t form_;     // next to be looked at
    std::size_t left_;     // forms to be looked at still
    bool bounded_ = true;  // only what lies behind `from_` counts
    bool wrapped_ = false;
    PaperRegion found_;
};

// Counts a text on the paper, likewise a few forms at a time.
class PaperCount {
public:
    // `text` is not empty.
    PaperCount(PaperRoll& roll, const QString& text);

    // Looks at up to `forms` forms; true once all were looked at.
    bool step(std::size_t forms);
    std::size_t total() const { return places_.size(); }
    // Which of them this one is, from 1.
    std::size_t indexOf(const PaperRegion& found) const;

private:
    struct Place {
        PaperUnits top = 0;
        PaperUnits left = 0;
        auto operator<=>(const Place&) const = default;
    };

    PaperRoll& roll_;
    QString text_;
    std::size_t count_;  // forms on the paper
    std::size_t form_ = 0;
    std::vector<Place> places_;  // from the top down
};

}  // namespace tarn::dotmatrix
