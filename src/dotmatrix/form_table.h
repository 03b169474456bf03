// Where the perforations of the paper are. Forms of one height that follow each other
// take the room of one, so that a million of them cost nothing.
//
// Lengths are whole numbers of 1/2160 inch: the pitches of these printers (10, 12,
// 15, 17.14 and 20 characters an inch) and their feeds (1/72, 1/180 and 1/216 inch)
// are all exact in it. y counts from the top of the first form.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tarn::dotmatrix {

using PaperUnits = std::int64_t;
inline constexpr PaperUnits unitsPerInch = 2160;

struct Form {
    PaperUnits top = 0;
    PaperUnits height = 0;
};

// Never empty. Forms count from 0; those before the first one added are unknown.
class FormTable {
public:
    explicit FormTable(const Form& first, std::size_t index = 0);

    // The next form, below the last one; `height` is above 0.
    void append(PaperUnits height);
    void setLastHeight(PaperUnits height);

    std::size_t size() const { return runs_.back().first + runs_.back().count; }
    // `index` is not below the first form's; the last form for one past the end.
    Form at(std::size_t index) const;
    Form operator[](std::size_t index) const { return at(index); }
    Form front() const { return at(runs_.front().first); }
    Form back() const { return at(size() - 1); }
    // The form that holds `y`, the first or last one for what lies outside.
    std::size_t formAt(PaperUnits y) const;

private:
    struct Run {
        std::size_t first = 0;
        std::size_t count = 1;
        PaperUnits top = 0;
        PaperUnits height = 0;
    };
    std::vector<Run> runs_;
};

}  // namespace tarn::dotmatrix
