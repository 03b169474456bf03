// What a desk says that ends before it has a screen.
#pragma once

#include "cli/command_line.h"

namespace tarn {

// On a terminal or in a pipe, its text; on Windows, where a program with windows has
// neither, a box. Gives the status.
int sayLast(const cli::Ending& ending);

}  // namespace tarn
