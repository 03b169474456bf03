#include "slips/frm_pesq_boleto.h"

#include <QKeyEvent>
#include <array>

#include "gateway/answer.h"
#include "platform/message_boxes.h"
#include "slips/print_slips.h"
#include "slips/slip_search.h"
#include "ui_frm_pesq_boleto.h"
#include "widgets/combo_items.h"
#include "widgets/enter_presses_button.h"
#include "widgets/field_controller.h"
#include "widgets/grid_model.h"
#include "widgets/progress_window.h"
#include "widgets/search_fields.h"

namespace tarn {
namespace {

// The columns without a width are for the printing alone.
constexpr std::array<ColunaGrade, colunasBoleto> colunas{
    {{"", 0, TipoColuna::Caixa},
     {"Filial", 17},
     {"Vencimento", 13},
     {"Tipo Documento", 18},
     {"Nº Documento", 17},
     {"Cliente", 32},
     {"Dt.de Emissão", 16},
     {"Endereço", 28},
     {"Vlr.do Documento", 20, TipoColuna::Numero},
     {"CEP", 0},
     {"Município", 0},
     {"Estado", 0},
     {"CNPJ / CPF", 0},
     {"I.E.", 0},
     {"TP_PES", 0},
     {"TP_DOCTO2", 0},
     {"ID_NR_CTL", 0},
     {"IC_REF_REC", 0},
     {"TX_JUR_DIA", 0},
     {"PC_MULTA", 0},
     {"JUROS_DIA", 0},
     {"VL_OUT_DSP", 0},
     {"DC_REF_REC", 0},
     {"ID_ETB", 0},
     {"ID_TIP_DOC", 0},
     {"NR_AGE", 0},
     {"ID_PES_BAN", 0},
     {"CD_EXT", 0},
     {"NR_DOC_NF", 0}}};
constexpr int linhasVisiveis = 14;
constexpr int larguraNumero = 18;  // characters

std::string texto(const QLineEdit& campo) {
    return campo.text().toStdString();
}

}  // namespace

frmPesqBoleto::frmPesqBoleto(DeskContext& desk, QWidget* parent)
    : QDialog(parent),
      desk_(desk),
      ui_(std::make_unique<Ui::frmPesqBoleto>()),
      documentos_(new GradeModel(colunas, this)) {
    ui_->setupUi(this);
    preparaGrade(*ui_->sprDados, *documentos_);
    preparaCampos();
    preparaBotoes();
    connect(this, &frmPesqBoleto::apareceu, this, &frmPesqBoleto::ativa, Qt::QueuedConnection);
    ajustaAGrade(*this, *ui_->sprDados, linhasVisiveis);
}

frmPesqBoleto::~frmPesqBoleto() = default;

void frmPesqBoleto::preparaCampos() {
    preparaCampoCliente(*ui_->txtCliente, desk_.ambiente);
    preparaDatas({ui_->txtDtEmsDe, ui_->txtDtEmsAte, ui_->txtDtVncDe, ui_->txtDtVncAte},
                 desk_.ambiente);
    QLineEdit& numero = *ui_->txtNr_Bol_Banc;
    new FieldController(&numero, KeyFilter::NumeroVirgula, desk_.ambiente);
    onlyTakes(numero, QStringLiteral("[0-9,]*"), desk_.ambiente.machine);
    numero.setFixedWidth(larguraNumero * numero.fontMetrics().averageCharWidth());
}

void frmPesqBoleto::preparaBotoes() {
    const auto prepara = [this](QPushButton* botao, const char* desenho, auto rotina) {
        preparaBotao(*botao, desenho);
        connect(botao, &QPushButton::clicked, this, rotina);
    };
    prepara(ui_->cmdPesqCli, "search_customer", &frmPesqBoleto::cmdPesqCli_Click);
    prepara(ui_->cmdLimpar, "clear", [this] { recebeCliente({}); });
    prepara(ui_->cmdPesquisar, "search", &frmPesqBoleto::cmdPesquisar_Click);
    prepara(ui_->cmdImprimir, "print", &frmPesqBoleto::cmdImprimir_Click);
    prepara(ui_->cmdVoltar, "close", &QDialog::reject);
    connect(ui_->chkInc_Carteira, &QCheckBox::clicked, this, &frmPesqBoleto::chkInc_Carteira_Click);
}

void frmPesqBoleto::recebeCliente(const Cliente& cliente) {
    mostraCliente(*ui_->txtCliente, cliente.id, cliente.nome);
}

// The first activation comes when the screen stands before the user.
void frmPesqBoleto::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (!event->spontaneous()) {
        emit apareceu();
    }
}

void frmPesqBoleto::ativa() {
    encheLista(*ui_->cboFilial, filiaisParaFiltro(desk_.ambiente, desk_.sessao));
    encheLista(*ui_->cboCartCob, carteirasParaFiltro(desk_.ambiente, desk_.sessao));
}

void frmPesqBoleto::recusa(const RecusaDeBoletos& motivo) {
    desk_.ambiente.boxes.show({std::string(motivo.texto), BoxIcon::Information, "TArn"});
    switch (motivo.campo) {
        case CampoDeBoletos::EmissaoDe:
            ui_->txtDtEmsDe->setFocus();
            break;
        case CampoDeBoletos::VencimentoAte:
            ui_->txtDtVncAte->setFocus();
            break;
        case CampoDeBoletos::Carteira:
            ui_->cboCartCob->setFocus();
            break;
        case CampoDeBoletos::NumeroBancario:
            ui_->txtNr_Bol_Banc->setFocus();
            break;
    }
}

void frmPesqBoleto::cmdPesqCli_Click() {
    emit procuraCliente();
    if (!desk_.fim.encerrado()) {
        ativa();
    }
}

void frmPesqBoleto::cmdPesquisar_Click() {
    const std::string cliente = idDoCliente(*ui_->txtCliente);
    const std::string vencimentoDe = texto(*ui_->txtDtVncDe);
    const std::string vencimentoAte = texto(*ui_->txtDtVncAte);
    const std::string emissaoDe = texto(*ui_->txtDtEmsDe);
    const std::string emissaoAte = texto(*ui_->txtDtEmsAte);
    const FiltroDeBoletos filtro{.documentos = {.cliente = cliente,
                                                .filial = dadoDaLista(*ui_->cboFilial),
                                                .vencimentoDe = vencimentoDe,
                                                .vencimentoAte = vencimentoAte,
                                                .emissaoDe = emissaoDe,
                                                .emissaoAte = emissaoAte},
                                 .carteira = dadoDaLista(*ui_->cboCartCob),
                                 .incluiCarteira = ui_->chkInc_Carteira->isChecked()};
    if (const auto motivo = recusaDaPesquisa(filtro.documentos, ui_->cboCartCob->currentIndex())) {
        recusa(*motivo);
        return;
    }
    mostra(filtro);
}

void frmPesqBoleto::mostra(const FiltroDeBoletos& filtro) {
    auto linhas = pesquisaBoletos(desk_.ambiente, desk_.sessao, filtro);
    if (!linhas) {
        return;
    }
    documentos_->mostra(std::move(*linhas));
    ui_->sprDados->setCurrentIndex(documentos_->index(0, 0));
    if (documentos_->rowCount() == 0) {
        exclama(desk_.ambiente, "Não foi encontrado nenhum documento para esta pesquisa. ");
    }
}

void frmPesqBoleto::cmdImprimir_Click() {
    const PedidoDeBoletos pedido{.proximo = texto(*ui_->txtNr_Bol_Banc),
                                 .incluiCarteira = ui_->chkInc_Carteira->isChecked()};
    if (const auto motivo = recusaDaImpressao(ui_->cboCartCob->currentIndex(), pedido.proximo)) {
        recusa(*motivo);
        return;
    }
    const auto carteira =
        carregaCarteira(desk_.ambiente, desk_.sessao, dadoDaLista(*ui_->cboCartCob));
    if (!carteira) {
        return;
    }
    Andamento andamento(*this);
    imprimeBoletos(
        desk_.ambiente, desk_.sessao, *carteira, pedido, documentos_->linhas(),
        {.desmarca = [this](std::size_t i) { documentos_->marca(static_cast<int>(i), false); },
         .passou = [this] { ui_->txtNr_Bol_Banc->clear(); },
         .andamento = andamento.avisos()});
}

void frmPesqBoleto::chkInc_Carteira_Click(bool marcado) {
    if (marcado) {
        desk_.ambiente.boxes.show(
            {"Esta opção só deverá ser selecionada quando se deseja incluir, no momento da "
             "impressão do boleto, um documento que esteja sem carteira de cobrança associada. A "
             "carteira a ser associada é a selecionada no combo acima.      ",
             BoxIcon::Information, "TArn"});
    }
}

void frmPesqBoleto::keyPressEvent(QKeyEvent* event) {
    if (!enterNoBotao(*this, *event)) {
        QDialog::keyPressEvent(event);
    }
}

}  // namespace tarn
