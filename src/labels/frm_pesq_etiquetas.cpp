#include "labels/frm_pesq_etiquetas.h"

#include <QKeyEvent>
#include <array>
#include <utility>

#include "labels/frm_excluir_etiqueta.h"
#include "labels/frm_imprimir_etiqueta.h"
#include "labels/label_values.h"
#include "labels/queue.h"
#include "platform/qt/wait_cursor.h"
#include "ui_frm_pesq_etiquetas.h"
#include "widgets/combo_items.h"
#include "widgets/enter_presses_button.h"
#include "widgets/grid_model.h"
#include "widgets/look.h"

namespace tarn {
namespace {

constexpr std::array<ColunaGrade, 10> colunas{{{"Sequencial", 13, TipoColuna::Numero},
                                               {"Cep", 13},
                                               {"Nome", 46},
                                               {"Código", 12},
                                               {"Endereço Nº", 46},
                                               {"Complemento", 20},
                                               {"Bairro", 26},
                                               {"Município", 28},
                                               {"UF", 5},
                                               {"País", 14}}};
constexpr int linhasVisiveis = 14;

}  // namespace

frmPesqEtiquetas::frmPesqEtiquetas(DeskContext& desk, labels::ValoresEtiquetas& valores,
                                   QWidget* parent)
    : QDialog(parent),
      desk_(desk),
      valores_(valores),
      ui_(std::make_unique<Ui::frmPesqEtiquetas>()),
      fila_(new GradeModel(colunas, this)) {
    ui_->setupUi(this);
    for (QWidget* doRemetente :
         {static_cast<QWidget*>(ui_->LblFilialRemet), static_cast<QWidget*>(ui_->CboFilialRemet)}) {
        QSizePolicy lugar = doRemetente->sizePolicy();
        lugar.setRetainSizeWhenHidden(true);  // the other fields stay where they are
        doRemetente->setSizePolicy(lugar);
    }
    QPalette paraLeitura = palette();
    paraLeitura.setColor(QPalette::Base, paraLeitura.color(QPalette::Window));
    ui_->txtTipo->setPalette(paraLeitura);
    preparaBotoes();
    preparaGradeDaFila();
    connect(ui_->cboMotivo, &QComboBox::activated, this, &frmPesqEtiquetas::leFila);
    connect(ui_->cboTp_Form, &QComboBox::currentIndexChanged, this,
            &frmPesqEtiquetas::cboTp_Form_Click);
    connect(ui_->CboFilialRemet, &QComboBox::activated, this,
            &frmPesqEtiquetas::CboFilialRemet_Click);
    ui_->cboMotivo->setFocus();
}

frmPesqEtiquetas::~frmPesqEtiquetas() = default;

void frmPesqEtiquetas::preparaGradeDaFila() {
    preparaGrade(*ui_->sprDados, *fila_);
    ajustaAGrade(*this, *ui_->sprDados, linhasVisiveis);
}

void frmPesqEtiquetas::preparaBotoes() {
    poeFigura(*ui_->cmdImprimir, "print");
    poeFigura(*ui_->cmdExcluir, "cancel_order");
    poeFigura(*ui_->cmdVoltar, "close");
    connect(ui_->cmdImprimir, &QPushButton::clicked, this, &frmPesqEtiquetas::cmdImprimir_Click);
    connect(ui_->cmdExcluir, &QPushButton::clicked, this, &frmPesqEtiquetas::cmdExcluir_Click);
    connect(ui_->cmdVoltar, &QPushButton::clicked, this, &QDialog::reject);
}

void frmPesqEtiquetas::carrega() {
    const WaitCursor hourglass;
    ui_->txtTipo->setText(desk_.sessao.TipoEtiqueta == "C" ? QStringLiteral(" CLIENTES")
                                                           : QStringLiteral(" FORNECEDORES"));
    for (const std::string_view formulario : labels::formulariosDaFila) {
        ui_->cboTp_Form->addItem(QString::fromStdString(std::string(formulario)),
                                 ui_->cboTp_Form->count());
    }
    cboTp_Form_Click();
    CarregaCboFilialRemet();
    Carrega_Cbo_Motivo();
}

void frmPesqEtiquetas::CarregaCboFilialRemet() {
    const auto filiais = labels::carregaFiliaisRemetente(desk_.ambiente, desk_.sessao);
    if (!filiais) {
        return;
    }
    encheLista(*ui_->CboFilialRemet, *filiais);
    CboFilialRemet_Click();
}

void frmPesqEtiquetas::Carrega_Cbo_Motivo() {
    encheLista(*ui_->cboMotivo, labels::carregaMotivos(desk_.ambiente, desk_.sessao));
    leFila();
}

void frmPesqEtiquetas::leFila() {
    const std::string motivo = ui_->cboMotivo->currentText().toStdString();
    if (auto fila = labels::leFila(desk_.ambiente, desk_.sessao, motivo, valores_)) {
        fila_->mostra(std::move(*fila));
    }
}

void frmPesqEtiquetas::abreModal(QDialog& tela) {
    tela.exec();
    if (!desk_.fim.encerrado()) {
        ativa();
    }
}

void frmPesqEtiquetas::ativa() {
    if (ui_->cboMotivo->currentIndex() != 0) {
        leFila();
    }
}

void frmPesqEtiquetas::cboTp_Form_Click() {
    const bool comRemetente = ui_->cboTp_Form->currentIndex() == labels::posicaoComRemetente;
    ui_->LblFilialRemet->setVisible(comRemetente);
    ui_->CboFilialRemet->setVisible(comRemetente);
}

void frmPesqEtiquetas::CboFilialRemet_Click() {
    valores_.FilialRemetente = dadoDaLista(*ui_->CboFilialRemet);
}

void frmPesqEtiquetas::cmdImprimir_Click() {
    const int posicao = ui_->cboTp_Form->currentIndex();
    switch (labels::verificaEscolhas(desk_.ambiente, valores_, posicao)) {
        case labels::FaltaEscolher::Motivo:
            ui_->cboMotivo->setFocus();
            return;
        case labels::FaltaEscolher::Formulario:
            ui_->cboTp_Form->setFocus();
            return;
        case labels::FaltaEscolher::Nada:
            break;
    }
    valores_.TipoFormulario = std::to_string(posicao);
    frmImprimirEtiqueta impressao(desk_, valores_, this);
    abreModal(impressao);
}

void frmPesqEtiquetas::cmdExcluir_Click() {
    frmExcluirEtiqueta exclusao(desk_, valores_, this);
    abreModal(exclusao);
}

void frmPesqEtiquetas::keyPressEvent(QKeyEvent* event) {
    if (!enterNoBotao(*this, *event)) {
        QDialog::keyPressEvent(event);
    }
}

}  // namespace tarn
