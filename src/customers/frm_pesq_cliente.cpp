#include "customers/frm_pesq_cliente.h"

#include <QKeyEvent>
#include <array>
#include <exception>
#include <utility>
#include <vector>

#include "platform/message_boxes.h"
#include "platform/qt/wait_cursor.h"
#include "ui_frm_pesq_cliente.h"
#include "widgets/grid_model.h"
#include "widgets/look.h"

namespace tarn {
namespace {

constexpr std::array<ColunaGrade, 4> colunas{
    {{"Cliente", 52}, {"Tipo de Empresa", 26}, {"ID_PES_CLI", 14}, {"ID_ETB_CLI", 0}}};
constexpr std::size_t colunaNome = 1;
constexpr std::size_t colunaId = 3;
constexpr int linhasVisiveis = 12;

}  // namespace

FrmPesqCliente::FrmPesqCliente(DeskContext& desk, QWidget* parent)
    : QDialog(parent),
      desk_(desk),
      ui_(std::make_unique<Ui::FrmPesqCliente>()),
      clientes_(new GradeModel(colunas, this)) {
    ui_->setupUi(this);
    preparaGrade(*ui_->sprDados, *clientes_);
    preparaBotoes();
    ajustaAGrade(*this, *ui_->sprDados, linhasVisiveis);
}

FrmPesqCliente::~FrmPesqCliente() = default;

void FrmPesqCliente::preparaBotoes() {
    poeFigura(*ui_->cmdPesquisar, "search");
    poeFigura(*ui_->cmdSelecionar, "select");
    poeFigura(*ui_->cmdVoltar, "close");
    connect(ui_->cmdPesquisar, &QPushButton::clicked, this, &FrmPesqCliente::cmdPesquisar_Click);
    connect(ui_->cmdSelecionar, &QPushButton::clicked, this, &FrmPesqCliente::cmdSelecionar_Click);
    connect(ui_->cmdVoltar, &QPushButton::clicked, this, &QDialog::reject);
    // A double click on a row, and Enter in the grid.
    connect(ui_->sprDados, &QTableView::activated, this, &FrmPesqCliente::cmdSelecionar_Click);
}

// What goes wrong in here beyond the request is not told: the search can be repeated.
void FrmPesqCliente::cmdPesquisar_Click() {
    const WaitCursor hourglass;
    try {
        const auto mostra = [this](std::vector<LinhaGrade> linhas) {
            clientes_->mostra(std::move(linhas));
            ui_->sprDados->setCurrentIndex(clientes_->index(0, 0));
        };
        if (!pesquisaCliente(desk_.ambiente, desk_.sessao, ui_->txtNmCli->text().toStdString(),
                             mostra)) {
            ui_->txtNmCli->setFocus();
        }
    } catch (const std::exception&) {
        return;
    }
}

void FrmPesqCliente::cmdSelecionar_Click() {
    if (clientes_->rowCount() == 0) {
        desk_.ambiente.boxes.show(
            {"Faça uma pesquisa para selecionar um cliente.     ", BoxIcon::Information, "Aviso"});
        return;
    }
    const QModelIndex ativa = ui_->sprDados->currentIndex();
    const LinhaGrade& linha = clientes_->linha(ativa.isValid() ? ativa.row() : 0);
    emit escolheu({.id = linha.coluna(colunaId), .nome = linha.coluna(colunaNome)});
    accept();
}

// Enter in the grid is no click on the default button.
void FrmPesqCliente::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!enter || !ui_->sprDados->hasFocus()) {
        QDialog::keyPressEvent(event);
    }
}

}  // namespace tarn
