#include "widgets/grid_search.h"

#include <QTableView>
#include <algorithm>
#include <vector>

namespace tarn {
namespace {

bool isAscii(const QString& text) {
    return std::all_of(text.begin(), text.end(), [](QChar letter) { return letter < u'\x80'; });
}

// Without what the eye takes for the same letter.
QString plain(const QString& text) {
    if (isAscii(text)) {
        return text.toLower();
    }
    QString letters = text.normalized(QString::NormalizationForm_KD);
    letters.removeIf([](QChar letter) { return letter.isMark(); });
    return letters.toLower();
}

std::vector<int> shownColumns(const QTableView& grid) {
    std::vector<int> all;
    for (int column = 0; column < grid.model()->columnCount(); ++column) {
        if (!grid.isColumnHidden(column)) {
            all.push_back(column);
        }
    }
    return all;
}

}  // namespace

FoundCell findCell(const QTableView& grid, const QString& text, const QModelIndex& from,
                   bool behind) {
    const QAbstractItemModel& model = *grid.model();
    const std::vector<int> columns = shownColumns(grid);
    const QString wanted = plain(text);
    const int rows = model.rowCount();
    const int first = from.isValid() ? from.row() : 0;
    const auto has = [&](int row, int column) {
        return plain(model.index(row, column).data().toString()).contains(wanted);
    };
    // The row of `from` comes twice: at the start behind it, at the end up to it.
    for (int passed = 0; rows > 0 && passed <= rows; ++passed) {
        const int row = (first + passed) % rows;
        for (const int column : columns) {
            const bool before =
                from.isValid() && (behind ? column <= from.column() : column < from.column());
            if ((passed == 0 && before) || (passed == rows && !before)) {
                continue;
            }
            if (has(row, column)) {
                return {model.index(row, column), first + passed >= rows};
            }
        }
    }
    return {};
}

}  // namespace tarn
