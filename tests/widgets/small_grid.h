// A grid of four columns, one of each kind: a box to tick, a text, a kept value, an amount.
#pragma once

#include "common/grid_rows.h"

namespace tarn::test {

enum class Column { Tick, Name, Kept, Value, End };

inline constexpr auto columns =
    gridOf<Column>({{Column::Tick, {"", "", 4, Treatment::Tick}},
                    {Column::Name, {"NOME", "Nome", 20}},
                    {Column::Kept, {"ID", "Guardada", 0}},
                    {Column::Value, {"VL", "Valor", 12, Treatment::Amount}}});

}  // namespace tarn::test
