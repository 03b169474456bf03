// The option `--marca`: which rows of a list print, as a user ticks them in a grid.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "apps/tarnimprime/commands.h"
#include "common/grid_rows.h"

namespace tarn::print {

// Left out: every row prints.
using TickedRows = std::optional<std::string>;

void declareTicks(cli::Command& command, TickedRows& tick);

// Ticks the rows that it names, from 1, separated by commas; none for an empty one.
// cli::WrongUsage for a number that no row has.
void tickRows(std::vector<GridRow>& lines, const TickedRows& tick);

}  // namespace tarn::print
