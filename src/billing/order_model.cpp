#include "billing/order_model.h"

#include <array>
#include <string_view>
#include <utility>

namespace tarn {
namespace {

struct Column {
    const char* title;
    const char* hint;
    bool number = false;
};

// The last four columns have no heading; their tool tip says what they hold.
constexpr std::array<Column, 12> columns{{{"Ord. Fat.", "Número da ordem de faturamento"},
                                          {"Cliente", "Cliente"},
                                          {"Estabelecimento", "Estabelecimento"},
                                          {"Tipo de NF", "Tipo de nota fiscal"},
                                          {"Dt. Emissão", "Data em que a ordem foi gerada"},
                                          {"Ord. Carga", "Número da ordem de carga"},
                                          {"Transportadora", "Transportadora"},
                                          {"Motorista", "Motorista"},
                                          {"", "Observação"},
                                          {"", "Quantidade de volumes", true},
                                          {"", "Peso bruto", true},
                                          {"", "Peso líquido", true}}};

const Column& column(int number) {
    return columns.at(static_cast<std::size_t>(number));
}

}  // namespace

void OrderModel::show(std::vector<BillingOrder> orders) {
    beginResetModel();
    orders_ = std::move(orders);
    endResetModel();
}

int OrderModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(orders_.size());
}

int OrderModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(columns.size());
}

QVariant OrderModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) {
        return {};
    }
    if (role == Qt::TextAlignmentRole && column(index.column()).number) {
        return QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter);
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    return QString::fromStdString(
        order(index.row()).cells.at(static_cast<std::size_t>(index.column())));
}

QVariant OrderModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Vertical) {
        return role == Qt::DisplayRole ? QVariant(section + 1) : QVariant();
    }
    if (role == Qt::DisplayRole) {
        return QString::fromUtf8(column(section).title);
    }
    if (role == Qt::ToolTipRole) {
        return QString::fromUtf8(column(section).hint);
    }
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue(Qt::AlignLeft | Qt::AlignVCenter);
    }
    return {};
}

}  // namespace tarn
