#include "widgets/grid_model.h"

#include <utility>

namespace tarn {
namespace {

bool standsRight(const GridColumn& column) {
    return column.treatment == Treatment::Number || column.treatment == Treatment::Amount ||
           column.treatment == Treatment::Quantity;
}

QString heading(const GridColumn& column) {
    return QString::fromUtf8(column.heading);
}

// What a heading can't say in its width, or does.
QString hint(const GridColumn& column) {
    return column.treatment == Treatment::Tick
               ? QStringLiteral("Marcar ou desmarcar todas as linhas")
               : QString::fromUtf8(column.hint);
}

}  // namespace

GridModel::GridModel(std::span<const GridColumn> columns, QObject* parent)
    : QAbstractTableModel(parent), columns_(columns) {}

void GridModel::show(std::vector<GridRow> lines) {
    beginResetModel();
    lines_ = std::move(lines);
    endResetModel();
}

void GridModel::tick(int number, bool value) {
    lines_.at(static_cast<std::size_t>(number)).ticked = value;
    const QModelIndex box = index(number, 0);
    emit dataChanged(box, box, {Qt::CheckStateRole});
}

void GridModel::toggleByLastRow() {
    if (lines_.empty()) {
        return;
    }
    const bool value = !lines_.back().ticked;
    for (GridRow& line : lines_) {
        line.ticked = value;
    }
    emit dataChanged(index(0, 0), index(rowCount() - 1, 0), {Qt::CheckStateRole});
}

int GridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(lines_.size());
}

int GridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) {
        return {};
    }
    const GridColumn& which = column(index.column());
    if (isTick(which)) {
        return role == Qt::CheckStateRole
                   ? QVariant(ticked(index.row()) ? Qt::Checked : Qt::Unchecked)
                   : QVariant();
    }
    if (role == Qt::TextAlignmentRole && standsRight(which)) {
        return QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter);
    }
    const auto cell = static_cast<std::size_t>(index.column());
    const std::vector<std::string>& cells = line(index.row()).cells;
    if (role != Qt::DisplayRole || cell >= cells.size()) {
        return {};
    }
    return QString::fromStdString(cells[cell]);
}

bool GridModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!index.isValid() || role != Qt::CheckStateRole || index.column() != 0 || !hasCheckBox()) {
        return false;
    }
    tick(index.row(), value.toInt() == Qt::Checked);
    return true;
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags shared = QAbstractTableModel::flags(index);
    const bool box = index.isValid() && isTick(column(index.column()));
    return box ? shared | Qt::ItemIsUserCheckable : shared;
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Vertical) {
        return role == Qt::DisplayRole ? QVariant(section + 1) : QVariant();
    }
    const GridColumn& which = column(section);
    if (role == Qt::DisplayRole) {
        return heading(which);
    }
    if (role == Qt::ToolTipRole && !hint(which).isEmpty()) {
        return hint(which);
    }
    if (role == Qt::AccessibleTextRole && heading(which).trimmed().isEmpty()) {
        return hint(which);
    }
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue(Qt::AlignLeft | Qt::AlignVCenter);
    }
    return {};
}

}  // namespace tarn
