// The model of a grid: rows of cells under given headings. Of a grid with a check box
// column every row can be ticked.
#pragma once

#include <QAbstractTableModel>
#include <span>
#include <vector>

#include "common/grid_row.h"

class QTableView;
class QWidget;

namespace tarn {

enum class ColumnKind { Text, Number, CheckBox };  // a check box stands in the first column

struct GridColumn {
    const char* title;
    int width;  // characters; 0: kept for the printing, not shown
    ColumnKind kind = ColumnKind::Text;
    bool headingTicksAll = true;  // of a check box column
};

class GridModel : public QAbstractTableModel {
    Q_OBJECT

public:
    // The columns must outlive the model.
    GridModel(std::span<const GridColumn> columns, QObject* parent);

    // Takes the place of all rows; costs O(1) a row.
    void show(std::vector<GridRow> lines);
    const std::vector<GridRow>& lines() const { return lines_; }
    const GridRow& line(int number) const { return lines_.at(static_cast<std::size_t>(number)); }

    bool ticked(int number) const { return line(number).ticked; }
    void tick(int number, bool value);
    // Every row gets the opposite of the last row's tick.
    void toggleByLastRow();

    const GridColumn& column(int number) const {
        return columns_[static_cast<std::size_t>(number)];
    }
    bool hasCheckBox() const { return column(0).kind == ColumnKind::CheckBox; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::span<const GridColumn> columns_;
    std::vector<GridRow> lines_;
};

// Shows the model in the grid: widths, hidden columns, row heights. With a check box
// column: a click in its cell and the space key anywhere in the row tick it, a click on
// its heading is toggleByLastRow, unless the column says otherwise.
void prepareGrid(QTableView& grid, GridModel& model);

// Makes the screen large enough for so many rows and all shown columns of its grid, as
// far as the monitor goes.
void fitToGrid(QWidget& screen, const QTableView& grid, int lines);

}  // namespace tarn
