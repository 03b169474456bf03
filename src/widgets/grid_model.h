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

enum class TipoColuna { Texto, Numero, Caixa };  // a check box stands in the first column

struct ColunaGrade {
    const char* titulo;
    int largura;  // characters; 0: kept for the printing, not shown
    TipoColuna tipo = TipoColuna::Texto;
    bool tituloMarcaTodas = true;  // of a check box column
};

class GradeModel : public QAbstractTableModel {
    Q_OBJECT

public:
    // The columns must outlive the model.
    GradeModel(std::span<const ColunaGrade> colunas, QObject* parent);

    // Takes the place of all rows; costs O(1) a row.
    void mostra(std::vector<LinhaGrade> linhas);
    const std::vector<LinhaGrade>& linhas() const { return linhas_; }
    const LinhaGrade& linha(int numero) const {
        return linhas_.at(static_cast<std::size_t>(numero));
    }

    bool marcada(int numero) const { return linha(numero).marcada; }
    void marca(int numero, bool valor);
    // Every row gets the opposite of the last row's tick.
    void alternaPelaUltima();

    const ColunaGrade& coluna(int numero) const {
        return colunas_[static_cast<std::size_t>(numero)];
    }
    bool temCaixa() const { return coluna(0).tipo == TipoColuna::Caixa; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::span<const ColunaGrade> colunas_;
    std::vector<LinhaGrade> linhas_;
};

// Shows the model in the grid: widths, hidden columns, row heights. With a check box
// column: a click in its cell and the space key anywhere in the row tick it, a click on
// its heading is alternaPelaUltima, unless the column says otherwise.
void preparaGrade(QTableView& grade, GradeModel& modelo);

// Makes the screen large enough for so many rows and all shown columns of its grid, as
// far as the monitor goes.
void ajustaAGrade(QWidget& tela, const QTableView& grade, int linhas);

}  // namespace tarn
