// The option --marca: which rows of a list print, as a user ticks them in a grid.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "apps/tarnimprime/commands.h"
#include "common/grid_row.h"

namespace tarn::imprime {

// Left out: every row prints.
using Marca = std::optional<std::string>;

void declaraMarca(CLI::App& comando, Marca& marca);

// Ticks the rows that it names, from 1, parted by commas; none for an empty one.
// FalhaDeUso for a number that no row has.
void marcaLinhas(std::vector<LinhaGrade>& linhas, const Marca& marca);

}  // namespace tarn::imprime
