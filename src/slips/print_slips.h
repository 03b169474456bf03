// One run over the grid: a slip for each ticked document, its number written to the
// server before it is printed.
#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <string>

#include "common/grid_rows.h"
#include "gateway/sessao.h"
#include "platform/progress.h"
#include "slips/portfolio.h"

namespace tarn {

struct Environment;

// What shows of a run on the screen that began it; rows count from 0.
struct SlipRunView {
    std::function<void(std::size_t)> untick;  // sets `ticked` of the row to false
    std::function<void()> passed = [] {};     // after each row, ticked or not
    Progress progress = {};                   // counts the ticked rows
};

struct SlipRun {
    std::string next;                // number of the first slip, as typed
    bool includesPortfolio = false;  // the portfolio's bank counts, not each row's own
};

// The writes are sent and nothing of them is looked at: a slip is printed whatever
// became of them. Tells the user when no slip was printed. Raises TypeMismatch for a
// number or a portfolio that can't be worked with, InvalidArgument when the number
// has no next one, Overflow past 32767 slips; what was written and printed stays.
void printSlips(Environment& environment, const Sessao& session, const Portfolio& portfolio,
                const SlipRun& request, std::span<const GridRow> lines, const SlipRunView& screen);

}  // namespace tarn
