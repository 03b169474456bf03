#include "printer/paper/paper_region.h"

#include <QStringList>
#include <algorithm>
#include <limits>
#include <vector>

#include "dotmatrix/paper_text.h"

namespace tarn::dotmatrix {

namespace {

struct RegionRow {
    std::size_t form = 0;
    std::size_t row = 0;
    std::vector<Cell> cells;
};

void collect(const PaperLine& line, const PaperRegion& region, std::vector<RegionRow>& rows) {
    const PaperUnits middle = line.y + halfStrike;
    if (middle < region.top || middle >= region.bottom) {
        return;
    }
    for (const Cell& cell : line.cells) {
        const PaperUnits centre = cell.x + cell.width / 2;
        if (centre < region.left || centre >= region.right) {
            continue;
        }
        if (rows.empty() || rows.back().form != line.form || rows.back().row != line.row) {
            rows.push_back({line.form, line.row, {}});
        }
        rows.back().cells.push_back(cell);
    }
}

QString textOfRow(const RegionRow& row, std::uint16_t firstColumn) {
    std::u16string text;
    for (Cell cell : row.cells) {
        cell.column = static_cast<std::uint16_t>(cell.column - firstColumn + 1);
        putInto(text, cell);
    }
    return QString::fromStdU16String(text);
}

}  // namespace

PaperRegion PaperRegion::sorted() const {
    return {std::min(left, right), std::min(top, bottom), std::max(left, right),
            std::max(top, bottom)};
}

QString textIn(PaperRoll& roll, const PaperRegion& wanted) {
    const PaperRegion region = wanted.sorted();
    const std::size_t last = roll.forms().formAt(region.bottom);
    std::vector<RegionRow> rows;
    for (std::size_t form = roll.forms().formAt(region.top); form <= last; ++form) {
        for (const PaperLine& line : roll.page(form)->lines) {
            collect(line, region, rows);
        }
    }
    std::uint16_t firstColumn = std::numeric_limits<std::uint16_t>::max();
    for (const RegionRow& row : rows) {
        for (const Cell& cell : row.cells) {
            firstColumn = std::min(firstColumn, cell.column);
        }
    }
    QStringList lines;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (i > 0 && rows[i].form == rows[i - 1].form) {
            for (std::size_t row = rows[i - 1].row + 1; row < rows[i].row; ++row) {
                lines << QString();
            }
        }
        lines << textOfRow(rows[i], firstColumn);
    }
    return lines.join(QLatin1Char('\n'));
}

PaperRegion regionOf(const PaperRoll& roll, std::size_t form) {
    const Form shape = roll.forms().at(form);
    return {0, shape.top, std::max<PaperUnits>(roll.contentWidth(form), 1),
            shape.top + shape.height};
}

}  // namespace tarn::dotmatrix
