// From the rows of an answer to the rows of a grid, by a table of its columns.
#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "common/grid_row.h"

namespace tarn {

class XmlDocument;

// What becomes of the attribute on its way into the cell.
enum class Treatment {
    Text,               // as it stands
    Amount,             // read with a point as decimal mark, shown under "###,##0.00"
    CpfCnpj,            // masked for the kind of person that PES_JUR tells
    PersonKind,         // needs no attribute: "F" or "J" by PES_JUR
    ReceivableOnly,     // only of a receivable (TIPO_DOCTO is "DOCTO_RECEBER")
    NotReceivableOnly,  // only of anything else
};

// One for each column, the first one included; no name: the cell stays empty.
struct GridField {
    std::string_view name = {};
    Treatment treatment = Treatment::Text;
};

// Unticked rows; costs O(1) a row. An absent attribute leaves its cell empty, also in a
// treated column; a present but empty amount reads 0.
std::vector<GridRow> rowsOf(const XmlDocument& answer, std::span<const GridField> fields);

}  // namespace tarn
