// The rows of the order list as they were read; the grid shows them from here.
#pragma once

#include <QAbstractTableModel>
#include <vector>

#include "billing/orders.h"

namespace tarn {

class OrderModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    // Takes the place of all rows; costs O(1) a row.
    void show(std::vector<BillingOrder> orders);
    const BillingOrder& order(int line) const { return orders_.at(static_cast<std::size_t>(line)); }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<BillingOrder> orders_;
};

}  // namespace tarn
