#include "desk/mdi_menu.h"

#include <QCloseEvent>
#include <QDialog>
#include <QLabel>
#include <QMdiSubWindow>
#include <QScreen>
#include <QShowEvent>

#include "billing/frm_oft.h"
#include "bills/frm_pesq_dupli.h"
#include "cheques/frm_cheque.h"
#include "desk/collection_screens.h"
#include "desk/frm_ajuda.h"
#include "desk/frm_logon.h"
#include "desk/printer_notice.h"
#include "desk/start.h"
#include "labels/frm_impr_etiq.h"
#include "labels/frm_pesq_etiquetas.h"
#include "platform/machine.h"
#include "platform/qt/wait_cursor.h"
#include "reprint/frm_reimprime_nf.h"
#include "slips/frm_pesq_boleto.h"
#include "ui_mdi_menu.h"
#include "widgets/look.h"

namespace tarn {
namespace {

const auto tituloComSessao =
    QStringLiteral("TARN EMISSÕES - Rotina Mercantil - Versão de 07/01/2009 - Release 17 - G");

QLabel* novoPainel(QStatusBar& barra, const char* nome, const QString& acessivel, int largura) {
    auto* painel = new QLabel(&barra);
    painel->setObjectName(QLatin1StringView(nome));
    painel->setAccessibleName(acessivel);
    painel->setTextFormat(Qt::PlainText);
    painel->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    painel->setMargin(2);
    painel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    barra.addWidget(painel, largura);
    return painel;
}

}  // namespace

MDIMenu::MDIMenu(DeskContext& desk)
    : desk_(desk),
      ui_(std::make_unique<Ui::MDIMenu>()),
      cobranca_(std::make_unique<TelasDeCobranca>(desk, *this)) {
    ui_->setupUi(this);
    ui_->mnuNF->insertSeparator(ui_->mCNF)->setObjectName(QStringLiteral("NFtraco"));
    painel1_ = novoPainel(*ui_->StatusBar1, "Panel1", QStringLiteral("Impressora configurada"), 3);
    painel2_ = novoPainel(*ui_->StatusBar1, "Panel2", QStringLiteral("Estabelecimento"), 2);
    ui_->mdiArea->setBackground(palette().brush(QPalette::Mid));
    resize(screen()->availableSize() * 0.85);
    connect(ui_->mdiArea, &QMdiArea::subWindowActivated, this, &MDIMenu::centraliza);
    ligaMenu();
}

// Its screens are destroyed after it: what they tell then may not reach it any more.
MDIMenu::~MDIMenu() {
    ui_->mdiArea->disconnect(this);
}

void MDIMenu::ligaMenu() {
    connect(ui_->mnuImprClientes, &QAction::triggered, this, [this] { etiquetas("C"); });
    connect(ui_->mnuImprFornecedores, &QAction::triggered, this, [this] { etiquetas("F"); });
    connect(ui_->mOFT, &QAction::triggered, this, &MDIMenu::mOFT_Click);
    connect(ui_->mRINF, &QAction::triggered, this,
            [this] { nota("EMI002", TrabalhoNota::Reimpressao); });
    connect(ui_->mCNF, &QAction::triggered, this,
            [this] { nota("EMI003", TrabalhoNota::Cancelamento); });
    connect(ui_->mnuDuplicata, &QAction::triggered, this, &MDIMenu::mnuDuplicata_Click);
    connect(ui_->mnuBoleto, &QAction::triggered, this, &MDIMenu::mnuBoleto_Click);
    connect(ui_->mnuChequeImpressao, &QAction::triggered, this, &MDIMenu::mnuChequeImpressao_Click);
    connect(ui_->mnuAjuda, &QAction::triggered, this, &MDIMenu::mnuAjuda_Click);
    connect(ui_->mSair, &QAction::triggered, this, [this] { desk_.fim.encerra(); });
}

void MDIMenu::carrega() {
    {
        const WaitCursor hourglass;
        desk_.sessao.DirSistema = desk_.ambiente.machine.systemDirectory() + "\\";
    }
    if (!VerVersao(desk_.ambiente, desk_.sessao, versaoPrograma)) {
        desk_.fim.encerra();
        return;
    }
    if (entra()) {
        ativa();
    }
}

bool MDIMenu::entra() {
    FrmLogon logon(desk_, this);
    if (!logon.carrega()) {
        desk_.fim.encerra();
        return false;
    }
    return logon.exec() == QDialog::Accepted && !desk_.fim.encerrado();
}

void MDIMenu::ativa() {
    setWindowTitle(tituloComSessao);
    const std::string_view aviso =
        avisoImpressora(desk_.sessao.NCOMPANYCODE, desk_.sessao.ID_ETB_TARN);
    if (!aviso.empty()) {
        painel1_->setText(QString::fromUtf8(aviso.data(), static_cast<qsizetype>(aviso.size())));
    }
    painel2_->setText(QString::fromStdString(nomeFilial(desk_.ambiente, desk_.sessao)));
}

bool MDIMenu::temDireito(const char* transacao) {
    return VerificaDireitoAcesso(desk_.ambiente, desk_.sessao, transacao);
}

void MDIMenu::abreModal(QDialog& tela) {
    tela.exec();
    if (!desk_.fim.encerrado()) {
        ativa();
    }
}

void MDIMenu::etiquetas(const char* tipo) {
    desk_.sessao.TipoEtiqueta = tipo;
    frmPesqEtiquetas fila(desk_, valoresEtiquetas_, this);
    fila.carrega();
    abreModal(fila);
}

void MDIMenu::abreSelecaoEtiquetas() {
    FrmImprEtiq selecao(desk_, this);
    selecao.carrega();
    selecao.exec();
}

void MDIMenu::mOFT_Click() {
    if (temDireito("EMI001")) {
        abreNaArea(new FrmOFT(desk_));
    }
}

void MDIMenu::nota(const char* transacao, TrabalhoNota trabalho) {
    if (temDireito(transacao)) {
        abreNaArea(new FrmReImprimeNF(desk_, trabalho));
    }
}

template <typename Tela>
void MDIMenu::abreNaArea(Tela* tela) {
    tela->setAttribute(Qt::WA_DeleteOnClose);
    connect(tela, &Tela::carregou, this, &MDIMenu::travaMenus);
    connect(tela, &Tela::fechou, this, &MDIMenu::LiberaMenus);
    QMdiSubWindow* janela =
        ui_->mdiArea->addSubWindow(tela, Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                             Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
    janela->setAttribute(Qt::WA_DeleteOnClose);
    janela->resize(janela->sizeHint().boundedTo(ui_->mdiArea->size()));
    janela->show();
    tela->carrega();
}

void MDIMenu::mnuDuplicata_Click() {
    abreModal(cobranca_->duplicatas());
}

void MDIMenu::mnuBoleto_Click() {
    abreModal(cobranca_->boletos());
}

void MDIMenu::mnuChequeImpressao_Click() {
    if (temDireito("EMI005")) {
        frmCheque cheque(desk_, this);
        cheque.carrega();
        abreModal(cheque);
    }
}

void MDIMenu::mnuAjuda_Click() {
    frmAjuda ajuda(desk_, this);
    if (!ajuda.carrega()) {
        desk_.fim.encerra();
        return;
    }
    abreModal(ajuda);
}

void MDIMenu::travaMenus() {
    ui_->mnuEtiquetas->setEnabled(false);
    ui_->mnuNF->setEnabled(false);
}

void MDIMenu::LiberaMenus() {
    ui_->mnuEtiquetas->setEnabled(true);
    ui_->mnuNF->setEnabled(true);
}

// Screens stand in the middle of the desk's width, at its top.
void MDIMenu::centraliza(QMdiSubWindow* janela) {
    if (janela != nullptr && !janela->isMaximized()) {
        janela->move((ui_->mdiArea->viewport()->width() - janela->width()) / 2, 0);
    }
}

void MDIMenu::closeEvent(QCloseEvent* event) {
    desk_.fim.encerra();
    event->accept();
}

}  // namespace tarn
