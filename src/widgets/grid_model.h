// The model of a grid: rows of cells under given headings. Of a grid with a check box
// column every row can be ticked.
#pragma once

#include <QAbstractTableModel>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "common/grid_rows.h"

namespace tarn {

// What the ticked rows come to. Kept with each tick, whatever the number of rows.
struct GridTally {
    int ticked = 0;
    std::int64_t cents = 0;  // of the first amount shown; 0 where no column has one
};

class GridModel : public QAbstractTableModel {
    Q_OBJECT

public:
    // The columns must outlive the model. A check box stands in the first one.
    GridModel(std::span<const GridColumn> columns, QObject* parent);

    // Takes the place of all rows; costs O(1) a row.
    void show(std::vector<GridRow> lines);
    const std::vector<GridRow>& lines() const { return lines_; }
    const GridRow& line(int number) const { return lines_.at(static_cast<std::size_t>(number)); }

    bool ticked(int number) const { return line(number).ticked; }
    void tick(int number, bool value);
    // Every row gets the opposite of the last row's tick.
    void toggleByLastRow();

    const GridTally& tally() const { return tally_; }
    bool countsAmounts() const { return amountColumn_.has_value(); }

    const GridColumn& column(int number) const {
        return columns_[static_cast<std::size_t>(number)];
    }
    bool hasCheckBox() const { return isTick(column(0)); }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::int64_t centsOf(const GridRow& line) const;
    void count(const GridRow& line);

    std::span<const GridColumn> columns_;
    std::optional<std::size_t> amountColumn_;
    std::vector<GridRow> lines_;
    GridTally tally_;
};

}  // namespace tarn
