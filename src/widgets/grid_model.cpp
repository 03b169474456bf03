#include "widgets/grid_model.h"

#include <utility>

namespace tarn {

GradeModel::GradeModel(std::span<const ColunaGrade> colunas, QObject* parent)
    : QAbstractTableModel(parent), colunas_(colunas) {}

void GradeModel::mostra(std::vector<LinhaGrade> linhas) {
    beginResetModel();
    linhas_ = std::move(linhas);
    endResetModel();
}

void GradeModel::marca(int numero, bool valor) {
    linhas_.at(static_cast<std::size_t>(numero)).marcada = valor;
    const QModelIndex caixa = index(numero, 0);
    emit dataChanged(caixa, caixa, {Qt::CheckStateRole});
}

void GradeModel::alternaPelaUltima() {
    if (linhas_.empty()) {
        return;
    }
    const bool valor = !linhas_.back().marcada;
    for (LinhaGrade& linha : linhas_) {
        linha.marcada = valor;
    }
    emit dataChanged(index(0, 0), index(rowCount() - 1, 0), {Qt::CheckStateRole});
}

int GradeModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(linhas_.size());
}

int GradeModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(colunas_.size());
}

QVariant GradeModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) {
        return {};
    }
    const TipoColuna tipo = coluna(index.column()).tipo;
    if (tipo == TipoColuna::Caixa) {
        return role == Qt::CheckStateRole
                   ? QVariant(marcada(index.row()) ? Qt::Checked : Qt::Unchecked)
                   : QVariant();
    }
    if (role == Qt::TextAlignmentRole && tipo == TipoColuna::Numero) {
        return QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter);
    }
    const auto celula = static_cast<std::size_t>(index.column());
    const std::vector<std::string>& celulas = linha(index.row()).celulas;
    if (role != Qt::DisplayRole || celula >= celulas.size()) {
        return {};
    }
    return QString::fromStdString(celulas[celula]);
}

bool GradeModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!index.isValid() || role != Qt::CheckStateRole || index.column() != 0 || !temCaixa()) {
        return false;
    }
    marca(index.row(), value.toInt() == Qt::Checked);
    return true;
}

Qt::ItemFlags GradeModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags comuns = QAbstractTableModel::flags(index);
    const bool caixa = index.isValid() && coluna(index.column()).tipo == TipoColuna::Caixa;
    return caixa ? comuns | Qt::ItemIsUserCheckable : comuns;
}

QVariant GradeModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Vertical) {
        return role == Qt::DisplayRole ? QVariant(section + 1) : QVariant();
    }
    const ColunaGrade& qual = coluna(section);
    if (role == Qt::DisplayRole) {
        return QString::fromUtf8(qual.titulo);
    }
    if (qual.tipo == TipoColuna::Caixa && qual.tituloMarcaTodas &&
        (role == Qt::ToolTipRole || role == Qt::AccessibleTextRole)) {
        return QStringLiteral("Marcar ou desmarcar todas as linhas");
    }
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue(Qt::AlignLeft | Qt::AlignVCenter);
    }
    return {};
}

}  // namespace tarn
