#include "widgets/grid_model.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "runtime/numbers.h"

namespace tarn {
namespace {

// Far above any document; a sum of as many rows as memory holds stays a whole number.
constexpr double mostCents = 1e12;

std::optional<std::size_t> shownAmount(std::span<const GridColumn> columns) {
    const auto found = std::find_if(columns.begin(), columns.end(), [](const GridColumn& column) {
        return column.treatment == Treatment::Amount && column.width > 0;
    });
    if (found == columns.end()) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(found - columns.begin());
}

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
    : QAbstractTableModel(parent), columns_(columns), amountColumn_(shownAmount(columns)) {}

void GridModel::show(std::vector<GridRow> lines) {
    beginResetModel();
    lines_ = std::move(lines);
    tally_ = {};
    for (const GridRow& line : lines_) {
        count(line);
    }
    endResetModel();
}

std::int64_t GridModel::centsOf(const GridRow& line) const {
    if (!amountColumn_ || *amountColumn_ >= line.cells.size()) {
        return 0;
    }
    const double amount = parseComma(line.cells[*amountColumn_]).value_or(0);
    return std::llround(std::clamp(amount * 100, -mostCents, mostCents));
}

void GridModel::count(const GridRow& line) {
    if (line.ticked) {
        ++tally_.ticked;
        tally_.cents += centsOf(line);
    }
}

void GridModel::tick(int number, bool value) {
    GridRow& line = lines_.at(static_cast<std::size_t>(number));
    if (std::exchange(line.ticked, value) != value) {
        tally_.ticked += value ? 1 : -1;
        tally_.cents += value ? centsOf(line) : -centsOf(line);
    }
    const QModelIndex box = index(number, 0);
    emit dataChanged(box, box, {Qt::CheckStateRole});
}

void GridModel::toggleByLastRow() {
    if (lines_.empty()) {
        return;
    }
    const bool value = !lines_.back().ticked;
    tally_ = {};
    for (GridRow& line : lines_) {
        line.ticked = value;
        count(line);
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
        return hint(which).isEmpty() && isTick(which) ? QStringLiteral("Marcada") : hint(which);
    }
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue(Qt::AlignLeft | Qt::AlignVCenter);
    }
    return {};
}

}  // namespace tarn
