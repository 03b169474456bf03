#include "labels/frm_impr_etiq.h"

#include <QKeyEvent>
#include <algorithm>
#include <array>
#include <vector>

#include "labels/customer_selection.h"
#include "labels/print_selection.h"
#include "platform/qt/wait_cursor.h"
#include "ui_frm_impr_etiq.h"
#include "widgets/combo_items.h"
#include "widgets/enter_presses_button.h"
#include "widgets/field_families.h"
#include "widgets/grid_model.h"
#include "widgets/look.h"
#include "widgets/progress_window.h"

namespace tarn {
namespace {

constexpr std::array<ColunaGrade, 7> colunas{{{" ", 0, TipoColuna::Caixa, false},
                                              {"Cep", 13},
                                              {"Cliente", 46},
                                              {"Endereço", 46},
                                              {"Bairro", 26},
                                              {"Estado", 8},
                                              {"Cidade", 28}}};
constexpr int linhasVisiveis = 12;

comando::ItemEscolhido escolhido(const QComboBox& lista) {
    return {.posicao = std::max(lista.currentIndex(), 0), .dado = dadoDaLista(lista)};
}

std::string montaURL(const QComboBox& lista) {
    std::vector<std::int32_t> dados;
    dados.reserve(static_cast<std::size_t>(lista.count()));
    for (int i = 0; i < lista.count(); ++i) {
        dados.push_back(lista.itemData(i).toInt());
    }
    return labels::MontaURL(dados, lista.currentIndex());
}

}  // namespace

FrmImprEtiq::FrmImprEtiq(DeskContext& desk, QWidget* parent)
    : QDialog(parent),
      desk_(desk),
      ui_(std::make_unique<Ui::FrmImprEtiq>()),
      clientes_(new GradeModel(colunas, this)) {
    ui_->setupUi(this);
    preparaCampos();
    preparaBotoes();
    preparaGradeDeClientes();
    connect(ui_->cboPais, &QComboBox::activated, this, &FrmImprEtiq::cboPais_Click);
    connect(ui_->cboEstado, &QComboBox::activated, this, &FrmImprEtiq::cboEstado_Click);
    ui_->cboFilial->setFocus();
}

FrmImprEtiq::~FrmImprEtiq() = default;

void FrmImprEtiq::preparaCampos() {
    for (QLineEdit* campo : {ui_->txtCepDe, ui_->txtCepAte, ui_->txtVlrDe, ui_->txtVlrAte,
                             ui_->txtQtde, ui_->txtQtAte}) {
        new FieldController(campo, KeyFilter::NumeroVirgula, desk_.ambiente);
    }
    for (QLineEdit* campo : {ui_->txtDtVndDe, ui_->txtDtVndAte}) {
        new DateField(campo, KeyFilter::NumeroVirgula, desk_.ambiente);
    }
}

void FrmImprEtiq::preparaGradeDeClientes() {
    preparaGrade(*ui_->sprDados, *clientes_);
    ajustaAGrade(*this, *ui_->sprDados, linhasVisiveis);
}

void FrmImprEtiq::preparaBotoes() {
    poeFigura(*ui_->cmdPesquisar, "search");
    poeFigura(*ui_->cmdImprimir, "print");
    poeFigura(*ui_->cmdVoltar, "close");
    connect(ui_->cmdPesquisar, &QPushButton::clicked, this, &FrmImprEtiq::cmdPesquisar_Click);
    connect(ui_->cmdImprimir, &QPushButton::clicked, this, &FrmImprEtiq::cmdImprimir_Click);
    connect(ui_->cmdVoltar, &QPushButton::clicked, this, &QDialog::reject);
}

void FrmImprEtiq::carrega() {
    const WaitCursor hourglass;
    CarregaCboPais();
    CarregaCboFilial();
}

// Standing on the first item counts as a click, where there is an item to stand on.
void FrmImprEtiq::CarregaCboPais() {
    encheLista(*ui_->cboPais, labels::carregaPaises(desk_.ambiente, desk_.sessao));
    if (ui_->cboPais->count() > 0) {
        cboPais_Click();
    }
}

void FrmImprEtiq::CarregaCboFilial() {
    encheLista(*ui_->cboFilial, labels::carregaFiliais(desk_.ambiente, desk_.sessao));
}

void FrmImprEtiq::cboPais_Click() {
    ui_->cboEstado->clear();
    ui_->cboCidade->clear();
    const std::int32_t pais = dadoDaLista(*ui_->cboPais);
    ui_->cboEstado->setEnabled(pais != labels::dadoTodas);
    if (pais == labels::dadoTodas) {
        ui_->cboCidade->setEnabled(false);
        return;
    }
    encheLista(*ui_->cboEstado, labels::carregaEstados(desk_.ambiente, desk_.sessao, pais));
    if (ui_->cboEstado->count() > 0) {
        cboEstado_Click();
    }
}

void FrmImprEtiq::cboEstado_Click() {
    ui_->cboCidade->clear();
    const std::int32_t estado = dadoDaLista(*ui_->cboEstado);
    ui_->cboCidade->setEnabled(estado != labels::dadoTodas);
    if (estado != labels::dadoTodas) {
        encheLista(*ui_->cboCidade, labels::carregaCidades(desk_.ambiente, desk_.sessao, estado));
    }
}

void FrmImprEtiq::cmdPesquisar_Click() {
    ui_->cmdPesquisar->setFocus();  // pressed by its key, too: a date field completes its date
    const auto texto = [](const QLineEdit* campo) { return campo->text().toStdString(); };
    const std::string filiais = montaURL(*ui_->cboFilial);
    const std::string produto = texto(ui_->txtProd);
    const std::string cepDe = texto(ui_->txtCepDe);
    const std::string cepAte = texto(ui_->txtCepAte);
    const std::string vendaDe = texto(ui_->txtDtVndDe);
    const std::string vendaAte = texto(ui_->txtDtVndAte);
    const std::string valorDe = texto(ui_->txtVlrDe);
    const std::string valorAte = texto(ui_->txtVlrAte);
    const std::string quantidadeDe = texto(ui_->txtQtde);
    const std::string quantidadeAte = texto(ui_->txtQtAte);
    const comando::FiltroEtiquetas filtro{.filiais = filiais,
                                          .pais = escolhido(*ui_->cboPais),
                                          .estado = escolhido(*ui_->cboEstado),
                                          .cidade = escolhido(*ui_->cboCidade),
                                          .produto = produto,
                                          .cepDe = cepDe,
                                          .cepAte = cepAte,
                                          .vendaDe = vendaDe,
                                          .vendaAte = vendaAte,
                                          .valorDe = valorDe,
                                          .valorAte = valorAte,
                                          .quantidadeDe = quantidadeDe,
                                          .quantidadeAte = quantidadeAte,
                                          .porCep = ui_->optCep->isChecked()};
    switch (labels::verificaDatas(desk_.ambiente, filtro)) {
        case labels::FaltaData::De:
            ui_->txtDtVndDe->setFocus();
            return;
        case labels::FaltaData::Ate:
            ui_->txtDtVndAte->setFocus();
            return;
        case labels::FaltaData::Nenhuma:
            break;
    }
    clientes_->mostra(labels::pesquisaClientes(desk_.ambiente, desk_.sessao, filtro));
}

void FrmImprEtiq::cmdImprimir_Click() {
    Andamento andamento(*this);
    labels::imprimeSelecao(desk_.ambiente, clientes_->linhas(), andamento.avisos());
}

void FrmImprEtiq::keyPressEvent(QKeyEvent* event) {
    if (!enterNoBotao(*this, *event)) {
        QDialog::keyPressEvent(event);
    }
}

}  // namespace tarn
