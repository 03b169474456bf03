// What the paper shows cut or outside the boxes of its form, and what the document cut before it
// printed where the job's sender tells. Where it doesn't, a text that fills its box to the edge
// may be such a one.
#pragma once

#include <QString>
#include <cstdint>
#include <optional>
#include <vector>

#include "dotmatrix/form_design.h"
#include "dotmatrix/paper_roll.h"
#include "printer/paper/paper_region.h"

namespace tarn::dotmatrix {

struct PaperFault {
    enum class Kind : std::uint8_t {
        Outside,   // no box is there
        OverEdge,  // goes on beyond a box's edge, or begins before it
        Full,      // from edge to edge of its box
        Cut        // by the document, which tells so
    };
    Kind kind{};
    PaperRegion region{};
    std::size_t form = 0;    // from 0
    std::size_t job = 0;     // from 1
    std::size_t row = 0;     // of the form, from 1
    std::size_t column = 0;  // from 1
    QString box{};           // its words; empty for none
    QString text{};          // outside the box, in it where it is full, what is missing of it
};

// In words for the user, without what is told of its place.
QString describe(const PaperFault& fault);

// The form under a page: its own, or the one that lies under what has none; null for none.
const FormDesign* designUnder(const FormPage& page, const FormDesign* underAll);

// From the top down, as the form's boxes are drawn, then what the jobs tell that begin on this
// form; nothing where no form with boxes lies under it. `underAll` as above; `jobs` are those
// of its roll.
std::optional<std::vector<PaperFault>> faultsOn(const FormPage& page, const FormDesign* underAll,
                                                const std::vector<RollJob>& jobs);

// Of the print of one of the roll's jobs, by its index, likewise.
std::optional<std::vector<PaperFault>> faultsOfJob(PaperRoll& roll, std::size_t job,
                                                   const FormDesign* underAll);

}  // namespace tarn::dotmatrix
