#include "bills/frm_pesq_dupli.h"

#include <QBuffer>
#include <QImageReader>
#include <QKeyEvent>
#include <array>

#include "bills/bill_search.h"
#include "bills/print_bills.h"
#include "platform/message_boxes.h"
#include "ui_frm_pesq_dupli.h"
#include "widgets/combo_items.h"
#include "widgets/enter_presses_button.h"
#include "widgets/grid_model.h"
#include "widgets/progress_window.h"
#include "widgets/search_fields.h"

namespace tarn {
namespace {

// The columns without a width are for the printing alone.
constexpr std::array<ColunaGrade, colunasDuplicata> colunas{
    {{"", 0, TipoColuna::Caixa},
     {"Filial", 17},
     {"Dt.de Vencimento", 21},
     {"Dt.de Emissão", 17},
     {"Nº do Documento", 20},
     {"Cliente", 38},
     {"Endereço", 38},
     {"Vlr.do Documento", 21, TipoColuna::Numero},
     {"CEP", 12},
     {"Município", 24},
     {"Filial", 8},
     {"CNPJ / CPF", 22},
     {"I.E.", 18},
     {"TP_PES", 0},
     {"TP_DOCTO1", 0},
     {"TP_DOCTO2", 0},
     {"ID_NR_CTL", 0},
     {"IC_REF_REC", 0},
     {"NR_DOC_NF", 0},
     {"Endereço Cobrança", 38},
     {"Município Cobrança", 24},
     {"Estado Cobrança", 20},
     {"CEP Cobrança", 17}}};
constexpr int linhasVisiveis = 14;
constexpr int alturaDaFigura = 2;  // lines

// Decoded at the size shown, however many dots the file has. Nothing for no picture.
QPixmap miniatura(const Picture& figura, const QSize& espaco) {
    QByteArray bytes =
        QByteArray::fromRawData(figura.bytes->data(), static_cast<qsizetype>(figura.bytes->size()));
    QBuffer buffer(&bytes);
    QImageReader leitor(&buffer);
    const QSize inteira = leitor.size();
    if (!inteira.isValid()) {
        return {};
    }
    leitor.setScaledSize(inteira.scaled(espaco, Qt::KeepAspectRatio).expandedTo({1, 1}));
    return QPixmap::fromImage(leitor.read());
}

}  // namespace

FrmPesqDupli::FrmPesqDupli(DeskContext& desk, QWidget* parent)
    : QDialog(parent),
      desk_(desk),
      ui_(std::make_unique<Ui::FrmPesqDupli>()),
      documentos_(new GradeModel(colunas, this)) {
    ui_->setupUi(this);
    preparaGrade(*ui_->sprDados, *documentos_);
    preparaCampos();
    preparaBotoes();
    ajustaAGrade(*this, *ui_->sprDados, linhasVisiveis);
}

FrmPesqDupli::~FrmPesqDupli() = default;

void FrmPesqDupli::preparaCampos() {
    preparaCampoCliente(*ui_->txtCliente, desk_.ambiente);
    preparaDatas({ui_->txtDtEmsDe, ui_->txtDtEmsAte, ui_->txtDtVncDe, ui_->txtDtVncAte},
                 desk_.ambiente);
    for (QRadioButton* opcao : {ui_->optDupl, ui_->optTripl}) {
        QSizePolicy lugar = opcao->sizePolicy();
        lugar.setRetainSizeWhenHidden(true);
        opcao->setSizePolicy(lugar);
    }
}

void FrmPesqDupli::preparaBotoes() {
    const auto prepara = [this](QPushButton* botao, const char* desenho, auto rotina) {
        preparaBotao(*botao, desenho);
        connect(botao, &QPushButton::clicked, this, rotina);
    };
    prepara(ui_->cmdPesqCli, "search_customer", &FrmPesqDupli::cmdPesqCli_Click);
    prepara(ui_->cmdLimpar, "clear", [this] { recebeCliente({}); });
    prepara(ui_->cmdPesquisar, "search", &FrmPesqDupli::cmdPesquisar_Click);
    prepara(ui_->cmdVoltar, "close", &QDialog::reject);
    prepara(ui_->cmdImprimir, "print", &FrmPesqDupli::cmdImprimir_Click);
}

void FrmPesqDupli::recebeCliente(const Cliente& cliente) {
    mostraCliente(*ui_->txtCliente, cliente.id, cliente.nome);
}

// The first activation comes when the screen stands before the user.
void FrmPesqDupli::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (!event->spontaneous()) {
        QMetaObject::invokeMethod(this, &FrmPesqDupli::ativa, Qt::QueuedConnection);
    }
}

void FrmPesqDupli::ativa() {
    encheLista(*ui_->cboTpDocto, tiposDeDocumento());
    encheLista(*ui_->cboFilial, filiaisParaFiltro(desk_.ambiente, desk_.sessao));
    figuras_ = carregaFiguras(desk_.ambiente.pastaFiguras);
    mostraFiguras();
}

// Small, so that the user sees what the pages will show.
void FrmPesqDupli::mostraFiguras() {
    const auto mostra = [](QLabel& onde, const std::optional<Picture>& figura) {
        const int altura = onde.fontMetrics().height() * alturaDaFigura;
        const QPixmap desenho = figura ? miniatura(*figura, {altura * 4, altura}) : QPixmap();
        onde.setPixmap(desenho);
        onde.setVisible(!desenho.isNull());
    };
    mostra(*ui_->picLogo, figuras_.picLogo);
    mostra(*ui_->picVert, figuras_.picVert);
    mostra(*ui_->picAss, figuras_.picAss);
}

void FrmPesqDupli::cmdPesqCli_Click() {
    emit procuraCliente();
    if (!desk_.fim.encerrado()) {
        ativa();
    }
}

void FrmPesqDupli::cmdPesquisar_Click() {
    const std::string vencimentoAte = ui_->txtDtVncAte->text().toStdString();
    if (const auto recusa = recusaDaPesquisa(ui_->cboTpDocto->currentIndex(), vencimentoAte)) {
        desk_.ambiente.boxes.show({std::string(recusa->texto), BoxIcon::Information, "TArn"});
        const bool tipo = recusa->campo == CampoDaPesquisa::TipoDocumento;
        (tipo ? static_cast<QWidget*>(ui_->cboTpDocto) : ui_->txtDtVncAte)->setFocus();
        return;
    }
    const std::int32_t tipo = dadoDaLista(*ui_->cboTpDocto);
    ui_->optDupl->setVisible(tipo == tipoDuplicata);
    ui_->optTripl->setVisible(tipo == tipoDuplicata);
    const std::string cliente = idDoCliente(*ui_->txtCliente);
    const std::string vencimentoDe = ui_->txtDtVncDe->text().toStdString();
    const std::string emissaoDe = ui_->txtDtEmsDe->text().toStdString();
    const std::string emissaoAte = ui_->txtDtEmsAte->text().toStdString();
    const comando::Pesquisa filtro{.cliente = cliente,
                                   .filial = dadoDaLista(*ui_->cboFilial),
                                   .vencimentoDe = vencimentoDe,
                                   .vencimentoAte = vencimentoAte,
                                   .emissaoDe = emissaoDe,
                                   .emissaoAte = emissaoAte};
    if (auto linhas = pesquisaDuplicatas(desk_.ambiente, desk_.sessao, tipo, filtro)) {
        documentos_->mostra(std::move(*linhas));
        ui_->sprDados->setCurrentIndex(documentos_->index(0, 0));
    }
}

void FrmPesqDupli::cmdImprimir_Click() {
    Andamento andamento(*this);
    imprimeSelecionados(desk_.ambiente, desk_.sessao,
                        {.linhas = documentos_->linhas(),
                         .triplicata = !ui_->optDupl->isChecked(),
                         .figuras = figuras_},
                        andamento.avisos());
}

void FrmPesqDupli::keyPressEvent(QKeyEvent* event) {
    if (!enterNoBotao(*this, *event)) {
        QDialog::keyPressEvent(event);
    }
}

}  // namespace tarn
