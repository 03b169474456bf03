// Looks through the cells of a grid for a text.
#pragma once

#include <QModelIndex>
#include <QString>

class QTableView;

namespace tarn {

struct FoundCell {
    QModelIndex cell;      // invalid: nowhere
    bool fromTop = false;  // the search went over the last row and on from the first
};

// The next cell shown that has the text in it, row by row from the cell behind `from` on,
// or from `from` itself, to there again. Neither case nor accents count.
FoundCell findCell(const QTableView& grid, const QString& text, const QModelIndex& from,
                   bool behind);

}  // namespace tarn
