// What a program with windows says that ends before it has one.
#pragma once

#include "cli/command_line.h"

namespace tarn::cli {

// On a terminal or in a pipe, its text; on Windows, where a program with windows has
// neither, a box. Gives the status.
int sayLast(const Ending& ending);

}  // namespace tarn::cli
