// The rows of a grid, apart from any widget: an answer fills them by the table of the
// grid's columns, a screen shows them, documents print from them.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace tarn {

class XmlDocument;

// What becomes of the attribute on its way into the cell.
enum class Treatment {
    Tick,               // none: a check box, whose heading ticks all rows at once
    TickAlone,          // none: a check box, whose heading does nothing
    Text,               // as it is
    Number,             // as it is, at the right edge
    Amount,             // read with a point as decimal mark, shown under "###,##0.00"
    Quantity,           // the same under "###,###,###,##0.000"
    CpfCnpj,            // masked for the kind of person that PES_JUR tells
    PersonKind,         // needs no attribute: "F" or "J" by PES_JUR
    ReceivableOnly,     // only of a receivable (TIPO_DOCTO is "DOCTO_RECEBER")
    NotReceivableOnly,  // only of anything else
};

// One column: its field of the answer and how it shows.
struct GridColumn {
    std::string_view attribute;  // empty: nothing fills the cell
    std::string_view heading;
    int width;  // characters; 0: kept for the documents, not shown
    Treatment treatment = Treatment::Text;
    std::string_view hint = {};  // tool tip of the heading
};

constexpr bool isTick(const GridColumn& column) {
    return column.treatment == Treatment::Tick || column.treatment == Treatment::TickAlone;
}

// A column under the name by which documents read its cell. The names of a grid are an
// enum class that counts from the first column and ends in `End`.
template <typename Column>
struct NamedColumn {
    Column name;
    GridColumn column;
};

// The table of a grid. It doesn't compile unless there is one row for each name, in the
// order of the names.
template <typename Column, std::size_t count>
consteval std::array<GridColumn, count> gridOf(const NamedColumn<Column> (&table)[count]) {
    static_assert(count == static_cast<std::size_t>(Column::End), "a row for each name");
    std::array<GridColumn, count> columns{};
    for (std::size_t place = 0; place < count; ++place) {
        if (static_cast<std::size_t>(table[place].name) != place) {
            throw "a column stands at another place than its name";
        }
        columns[place] = table[place].column;
    }
    return columns;
}

// One row, with a cell for each column. The cell of a check box column stays empty, what
// the box holds is `ticked`.
struct GridRow {
    std::vector<std::string> cells;
    bool ticked = false;

    template <typename Column>
    requires std::is_enum_v<Column>
    const std::string& text(Column column) const {
        return cells.at(static_cast<std::size_t>(column));
    }
    template <typename Column>
    requires std::is_enum_v<Column> std::string& text(Column column) {
        return cells.at(static_cast<std::size_t>(column));
    }
};

// The rows of a rowset answer, unticked; costs O(1) a row. An absent attribute leaves its
// cell empty, also in a treated column; a present but empty amount reads 0.
std::vector<GridRow> gridRows(const XmlDocument& answer, std::span<const GridColumn> columns);

}  // namespace tarn
