// A grid as a user sees and clicks it. Rows and columns count from 1.
#pragma once

#include <QHeaderView>
#include <QTableView>
#include <QTest>
#include <cstddef>
#include <string>
#include <vector>

namespace tarn::test::grid {

inline int rows(const QTableView& grid) {
    return grid.model()->rowCount();
}

inline std::string cell(const QTableView& grid, int row, int column) {
    return grid.model()->index(row - 1, column - 1).data().toString().toStdString();
}

inline std::vector<bool> ticks(const QTableView& grid) {
    std::vector<bool> all;
    all.reserve(static_cast<std::size_t>(rows(grid)));
    for (int row = 0; row < rows(grid); ++row) {
        all.push_back(grid.model()->index(row, 0).data(Qt::CheckStateRole).toInt() == Qt::Checked);
    }
    return all;
}

inline std::vector<std::string> headings(const QTableView& grid) {
    std::vector<std::string> all;
    for (int column = 0; column < grid.model()->columnCount(); ++column) {
        all.push_back(grid.model()->headerData(column, Qt::Horizontal).toString().toStdString());
    }
    return all;
}

inline void click(QTableView& grid, int row, int column) {
    const QModelIndex cell = grid.model()->index(row - 1, column - 1);
    grid.scrollTo(cell);
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, grid.visualRect(cell).center());
}

inline void clickHeading(const QTableView& grid, int column) {
    const QHeaderView& header = *grid.horizontalHeader();
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                      QPoint(header.sectionViewportPosition(column - 1) + 5, header.height() / 2));
}

}  // namespace tarn::test::grid
