#include "billing/order_model.h"

#include <array>
#include <string_view>
#include <utility>

namespace tarn {
namespace {

struct Coluna {
    const char* titulo;
    const char* dica;
    bool numero = false;
};

// The last four columns have no heading; their tool tip says what they hold.
constexpr std::array<Coluna, 12> colunas{{{"Ord. Fat.", "Número da ordem de faturamento"},
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

const Coluna& coluna(int numero) {
    return colunas.at(static_cast<std::size_t>(numero));
}

}  // namespace

void OrdensModel::mostra(std::vector<OrdemFaturamento> ordens) {
    beginResetModel();
    ordens_ = std::move(ordens);
    endResetModel();
}

int OrdensModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(ordens_.size());
}

int OrdensModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(colunas.size());
}

QVariant OrdensModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) {
        return {};
    }
    if (role == Qt::TextAlignmentRole && coluna(index.column()).numero) {
        return QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter);
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    return QString::fromStdString(
        ordem(index.row()).celulas.at(static_cast<std::size_t>(index.column())));
}

QVariant OrdensModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Vertical) {
        return role == Qt::DisplayRole ? QVariant(section + 1) : QVariant();
    }
    if (role == Qt::DisplayRole) {
        return QString::fromUtf8(coluna(section).titulo);
    }
    if (role == Qt::ToolTipRole) {
        return QString::fromUtf8(coluna(section).dica);
    }
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue(Qt::AlignLeft | Qt::AlignVCenter);
    }
    return {};
}

}  // namespace tarn
