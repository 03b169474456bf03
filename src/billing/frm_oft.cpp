#include "billing/frm_oft.h"

#include <QCloseEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMdiSubWindow>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTimer>
#include <array>

#include "billing/frm_manut_det_oft.h"
#include "billing/frm_mensagem_alerta.h"
#include "billing/generate_note.h"
#include "billing/observations.h"
#include "billing/order_model.h"
#include "billing/print_order.h"
#include "platform/message_boxes.h"
#include "platform/qt/wait_cursor.h"
#include "ui_frm_oft.h"
#include "widgets/look.h"

namespace tarn {
namespace {

constexpr int intervaloMs = 60000;
// Widths of the grid's columns in characters.
constexpr std::array<int, 12> larguras{12, 34, 19, 18, 14, 13, 24, 24, 26, 17, 17, 17};
constexpr int colunasComTitulo = 8;
constexpr int linhasVisiveis = 18;

// What follows a click or a key without the user having looked again.
bool repeteOGesto(const QEvent& event) {
    return event.type() == QEvent::MouseButtonDblClick ||
           (event.type() == QEvent::KeyPress &&
            static_cast<const QKeyEvent&>(event).isAutoRepeat());
}

}  // namespace

FrmOFT::FrmOFT(DeskContext& desk)
    : desk_(desk),
      ui_(std::make_unique<Ui::FrmOFT>()),
      ordens_(new OrdensModel(this)),
      timer_(new QTimer(this)) {
    ui_->setupUi(this);
    preparaGrade();
    preparaBotoes();
    timer_->setObjectName(QStringLiteral("Timer"));
    timer_->setInterval(intervaloMs);
    connect(timer_, &QTimer::timeout, this, &FrmOFT::Timer_Tick);
    ui_->cmdSelecionar->installEventFilter(this);
}

FrmOFT::~FrmOFT() = default;

void FrmOFT::preparaGrade() {
    QTableView& grade = *ui_->sprDados;
    grade.setModel(ordens_);
    const int caractere = grade.fontMetrics().averageCharWidth();
    for (int coluna = 0; coluna < ordens_->columnCount(); ++coluna) {
        grade.setColumnWidth(coluna, larguras.at(static_cast<std::size_t>(coluna)) * caractere);
    }
    grade.horizontalHeader()->setHighlightSections(false);
    grade.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    grade.verticalHeader()->setDefaultSectionSize(grade.fontMetrics().height() * 3 / 2);
}

void FrmOFT::preparaBotoes() {
    const int lado = fontMetrics().height() * 2;
    const auto prepara = [this, lado](QPushButton* botao, const char* desenho, auto rotina) {
        botao->setIcon(figura(QLatin1StringView(desenho)));
        botao->setIconSize({lado, lado});
        connect(botao, &QPushButton::clicked, this, rotina);
    };
    prepara(ui_->cmdSelecionar, "generate_note", &FrmOFT::cmdSelecionar_Click);
    prepara(ui_->CmdFechar, "close", &FrmOFT::CmdFechar_Click);
    prepara(ui_->CmdAtualizar, "refresh", &FrmOFT::loadSpread);
    prepara(ui_->CmdCanOft, "cancel_order", &FrmOFT::CmdCanOft_Click);
    prepara(ui_->cmdImprimirOF, "print_order", &FrmOFT::cmdImprimirOF_Click);
    prepara(ui_->cmdDetOFT, "edit_order", &FrmOFT::cmdDetOFT_Click);
}

// Wide enough for the columns that have a heading.
QSize FrmOFT::sizeHint() const {
    const QTableView& grade = *ui_->sprDados;
    int largura = grade.verticalHeader()->sizeHint().width() + 2 * grade.frameWidth() +
                  grade.verticalScrollBar()->sizeHint().width();
    for (int coluna = 0; coluna < colunasComTitulo; ++coluna) {
        largura += grade.columnWidth(coluna);
    }
    const int altura = grade.verticalHeader()->defaultSectionSize() * linhasVisiveis;
    return QWidget::sizeHint() - grade.sizeHint() + QSize(largura, altura);
}

void FrmOFT::carrega() {
    const WaitCursor hourglass;
    emit carregou();
    timer_->start();
    loadSpread();
    ui_->sprDados->setFocus();
}

void FrmOFT::loadSpread() {
    ordens_->mostra({});
    ordens_->mostra(carregaOrdens(desk_.ambiente, desk_.sessao));
    ui_->sprDados->setCurrentIndex(ordens_->index(0, 0));
}

// A tick that comes while the one before still shows its box is dropped, so that boxes
// don't pile up on a desk that nobody sits at.
void FrmOFT::Timer_Tick() {
    if (noTick_) {
        return;
    }
    const QScopedValueRollback<bool> guarda(noTick_, true);
    loadSpread();
}

std::optional<OrdemFaturamento> FrmOFT::ordemSelecionada() {
    if (ordens_->rowCount() == 0) {
        desk_.ambiente.boxes.show(
            {"Selecione a ordem de faturamento.     ", BoxIcon::Exclamation, "Aviso"});
        return std::nullopt;
    }
    const QModelIndex ativa = ui_->sprDados->currentIndex();
    return ordens_->ordem(ativa.isValid() ? ativa.row() : 0);
}

bool FrmOFT::observacoesAceitas(const OrdemFaturamento& ordem) {
    AlertaNaTela alerta(desk_.sessao, this);
    bool continua = false;
    Seleciona_Obs_Vnd_X_Ord(desk_.ambiente, desk_.sessao, alerta, ordem.ordem(), continua);
    return continua;
}

void FrmOFT::cmdSelecionar_Click() {
    timer_->stop();
    const auto ordem = ordemSelecionada();
    if (!ordem) {
        return;
    }
    AlertaNaTela alerta(desk_.sessao, this);
    if (geraNota(desk_.ambiente, desk_.sessao, alerta, ordem->ordem()) == FimDaGeracao::Completa) {
        loadSpread();
        timer_->start();
    }
}

void FrmOFT::CmdCanOft_Click() {
    const auto ordem = ordemSelecionada();
    if (ordem && cancelaOrdem(desk_.ambiente, desk_.sessao, *ordem)) {
        loadSpread();
    }
}

void FrmOFT::cmdImprimirOF_Click() {
    const auto ordem = ordemSelecionada();
    if (ordem && observacoesAceitas(*ordem)) {
        imprimeOrdemSelecionada(desk_.ambiente, desk_.sessao, ordem->ordem());
    }
}

void FrmOFT::cmdDetOFT_Click() {
    const auto ordem = ordemSelecionada();
    if (!ordem || !observacoesAceitas(*ordem)) {
        return;
    }
    // The list may have been renewed under the observation: the row that is active now
    // is the one that opens.
    const auto ativa = ordemSelecionada();
    if (!ativa) {
        return;
    }
    frmManutDetOFT dialogo(desk_, *ativa, this);
    connect(&dialogo, &frmManutDetOFT::gravou, this, [this] {
        loadSpread();
        timer_->start();
    });
    dialogo.exec();
}

void FrmOFT::CmdFechar_Click() {
    if (auto* janela = qobject_cast<QMdiSubWindow*>(parentWidget())) {
        janela->close();
    } else {
        close();
    }
}

// After a note the next order is the selected one: the second click of a double click
// and a key held down would generate its note too.
bool FrmOFT::eventFilter(QObject* /*watched*/, QEvent* event) {
    return repeteOGesto(*event);
}

// No shortcut: that would also be taken from a dialog that is just opening over this
// screen, and close the screen under it.
void FrmOFT::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && !event->isAutoRepeat()) {
        ui_->CmdFechar->click();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void FrmOFT::closeEvent(QCloseEvent* event) {
    timer_->stop();
    emit fechou();
    event->accept();
}

}  // namespace tarn
