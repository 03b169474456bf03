#include "desk/mdi_menu.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QGridLayout>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QShortcutEvent>
#include <QShowEvent>
#include <algorithm>

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
#include "platform/qt/input_gate.h"
#include "platform/qt/wait_cursor.h"
#include "reprint/frm_reimprime_nf.h"
#include "runtime/version.h"
#include "slips/frm_pesq_boleto.h"
#include "ui_mdi_menu.h"
#include "widgets/look.h"
#include "widgets/status_panel.h"

namespace tarn {
namespace {

constexpr int panelGap = 2;  // pixels
// The desk as it opens: a part of the monitor, but all of a small one; pixels, also of what
// a window manager puts around it.
constexpr double monitorPart = 0.85;
constexpr QSize smallMonitor(1180, 760);
constexpr QSize windowFrame(8, 38);
// Lines of the banner; of a desk that is lower than so many lines, the second.
constexpr int bannerLines = 3;
constexpr int lowBannerLines = 1;
constexpr int lowDeskLines = 42;

QSize openingSize(const QSize& monitor) {
    return (monitor * monitorPart).expandedTo(smallMonitor).boundedTo(monitor - windowFrame);
}

// A menu bar gives itself the keyboard for a menu that can't open.
bool isForLockedMenu(const QMenuBar& bar, const QShortcutEvent& stroke) {
    const QList<QAction*> entries = bar.actions();
    return std::ranges::any_of(entries, [&](const QAction* entry) {
        return !entry->isEnabled() && QKeySequence::mnemonic(entry->text()) == stroke.key();
    });
}

// A menu bar that was used by its keys keeps them when its menu has closed.
void takeKeys(QWidget& screen) {
    QWidget* wanted = screen.focusWidget();
    const QWidget* present = QApplication::focusWidget();
    if (wanted != nullptr && QApplication::activeModalWidget() == nullptr &&
        (present == nullptr || !screen.isAncestorOf(present))) {
        wanted->setFocus(Qt::OtherFocusReason);
    }
}

QString titleWithSession() {
    return QStringLiteral("TARN EMISSÕES - Rotina Mercantil - Versão de %1 - %2")
        .arg(QLatin1StringView(versionDate), QLatin1StringView(releaseName));
}

}  // namespace

MDIMenu::MDIMenu(DeskContext& desk)
    : desk_(desk),
      ui_(std::make_unique<Ui::MDIMenu>()),
      collection_(std::make_unique<CollectionScreens>(desk, *this)) {
    ui_->setupUi(this);
    InputGate::ofApplication().letClose(*this);
    ui_->mnuNF->insertSeparator(ui_->mCNF)->setObjectName(QStringLiteral("NFtraco"));
    preparePanels();
    ui_->mdiArea->setBackground(palette().brush(QPalette::Mid));
    resize(openingSize(screen()->availableSize()));
    setMinimumWidth(menuBar()->sizeHint().width());
    ui_->mdiArea->viewport()->installEventFilter(this);
    menuBar()->installEventFilter(this);
    connect(ui_->mdiArea, &QMdiArea::subWindowActivated, this, &MDIMenu::centre);
    connectMenu();
}

// Its screens are destroyed after it: what they tell then may not reach it any more.
MDIMenu::~MDIMenu() {
    ui_->mdiArea->disconnect(this);
}

// What was done has a line of its own, as wide as the desk.
void MDIMenu::preparePanels() {
    auto* panels = new QWidget(ui_->StatusBar1);
    auto* grid = new QGridLayout(panels);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(panelGap);
    const auto newPanel = [panels](const char* name, const QString& what) {
        return new StatusPanel(name, what, panels);
    };
    panel1_ = newPanel("Panel1", QStringLiteral("Impressora configurada"));
    panel2_ = newPanel("Panel2", QStringLiteral("Estabelecimento"));
    panel3_ = newPanel("Panel3", QStringLiteral("Último acontecimento"));
    panel4_ = newPanel("Panel4", QStringLiteral("Servidor"));
    panel4_->hide();
    grid->addWidget(panel3_, 0, 0, 1, 3);
    int column = 0;
    for (QWidget* panel : {panel1_, panel2_, panel4_}) {
        grid->addWidget(panel, 1, column++);
    }
    grid->setColumnStretch(0, 3);
    grid->setColumnStretch(1, 2);
    ui_->StatusBar1->addWidget(panels, 1);
}

void MDIMenu::tell(const QString& line) {
    panel3_->setText(line);
}

void MDIMenu::showServer(const QString& address) {
    panel4_->setText(QStringLiteral("Servidor: %1").arg(address));
    panel4_->show();
    static_cast<QGridLayout*>(panel4_->parentWidget()->layout())->setColumnStretch(2, 2);
}

void MDIMenu::connectMenu() {
    connect(ui_->mnuImprClientes, &QAction::triggered, this, [this] { labels("C"); });
    connect(ui_->mnuImprFornecedores, &QAction::triggered, this, [this] { labels("F"); });
    connect(ui_->mOFT, &QAction::triggered, this, &MDIMenu::mOFT_Click);
    connect(ui_->mRINF, &QAction::triggered, this, [this] { note("EMI002", NoteJob::Reprint); });
    connect(ui_->mCNF, &QAction::triggered, this,
            [this] { note("EMI003", NoteJob::Cancellation); });
    connect(ui_->mnuDuplicata, &QAction::triggered, this, &MDIMenu::mnuDuplicata_Click);
    connect(ui_->mnuBoleto, &QAction::triggered, this, &MDIMenu::mnuBoleto_Click);
    connect(ui_->mnuChequeImpressao, &QAction::triggered, this, &MDIMenu::mnuChequeImpressao_Click);
    connect(ui_->mnuAjuda, &QAction::triggered, this, &MDIMenu::mnuAjuda_Click);
    connect(ui_->mSair, &QAction::triggered, this, [this] { desk_.end.endProgram(); });
}

void MDIMenu::load() {
    {
        const WaitCursor hourglass;
        desk_.session.DirSistema = desk_.environment.machine.systemDirectory() + "\\";
    }
    if (!VerVersao(desk_.environment, desk_.session, versionDate)) {
        desk_.end.endProgram();
        return;
    }
    if (logOn()) {
        activate();
    }
}

bool MDIMenu::logOn() {
    FrmLogon logon(desk_, this);
    if (!logon.load()) {
        desk_.end.endProgram();
        return false;
    }
    return logon.exec() == QDialog::Accepted && !desk_.end.ended();
}

void MDIMenu::activate() {
    setWindowTitle(titleWithSession());
    const std::string_view notice =
        printerNotice(desk_.session.NCOMPANYCODE, desk_.session.ID_ETB_TARN);
    if (!notice.empty()) {
        panel1_->setText(QString::fromUtf8(notice.data(), static_cast<qsizetype>(notice.size())));
    }
    panel2_->setText(QString::fromStdString(branchName(desk_.environment, desk_.session)));
}

bool MDIMenu::hasRight(const char* transaction) {
    return VerificaDireitoAcesso(desk_.environment, desk_.session, transaction);
}

// A modal screen of the menu activates the desk again, but for the help: decisions D98, D122.
void MDIMenu::runModal(QDialog& screen) {
    screen.exec();
    if (!desk_.end.ended()) {
        activate();
    }
}

void MDIMenu::labels(const char* kind) {
    desk_.session.TipoEtiqueta = kind;
    frmPesqEtiquetas queue(desk_, labelValues_, this);
    queue.load();
    runModal(queue);
}

void MDIMenu::openLabelSelection() {
    FrmImprEtiq selection(desk_, this);
    selection.load();
    selection.exec();
}

void MDIMenu::mOFT_Click() {
    if (hasRight("EMI001")) {
        openInArea(new FrmOFT(desk_));
    }
}

void MDIMenu::note(const char* transaction, NoteJob job) {
    if (hasRight(transaction)) {
        openInArea(new FrmReImprimeNF(desk_, job));
    }
}

template <typename Screen>
void MDIMenu::openInArea(Screen* screen) {
    screen->setAttribute(Qt::WA_DeleteOnClose);
    connect(screen, &Screen::loaded, this, &MDIMenu::lockMenus);
    connect(screen, &Screen::closed, this, &MDIMenu::LiberaMenus);
    QMdiSubWindow* window = ui_->mdiArea->addSubWindow(
        screen, Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                    Qt::WindowCloseButtonHint);
    window->setAttribute(Qt::WA_DeleteOnClose);
    for (QAction* entry : window->systemMenu()->actions()) {
        entry->setShortcuts(QList<QKeySequence>());  // Ctrl+W is the screen's own
    }
    connect(window, &QObject::destroyed, ui_->mdiArea, &QWidget::updateGeometry);
    ui_->mdiArea->updateGeometry();  // the desk is never smaller than its screen needs
    fitScreens();
    window->show();
    screen->load();
    QMetaObject::invokeMethod(
        screen, [screen] { takeKeys(*screen); }, Qt::QueuedConnection);
}

void MDIMenu::mnuDuplicata_Click() {
    runModal(collection_->bills());
}

void MDIMenu::mnuBoleto_Click() {
    runModal(collection_->slips());
}

void MDIMenu::mnuChequeImpressao_Click() {
    if (hasRight("EMI005")) {
        frmCheque cheque(desk_, this);
        cheque.load();
        runModal(cheque);
    }
}

void MDIMenu::mnuAjuda_Click() {
    frmAjuda help(desk_, this);
    if (help.load()) {
        help.exec();
    } else {
        desk_.end.endProgram();
    }
}

void MDIMenu::lockMenus() {
    ui_->mnuEtiquetas->setEnabled(false);
    ui_->mnuNF->setEnabled(false);
}

void MDIMenu::LiberaMenus() {
    ui_->mnuEtiquetas->setEnabled(true);
    ui_->mnuNF->setEnabled(true);
}

// Screens open in the middle of the desk's width, at its top.
void MDIMenu::centre(QMdiSubWindow* window) {
    if (window != nullptr && !window->isMaximized()) {
        window->move((ui_->mdiArea->viewport()->width() - window->width()) / 2, 0);
    }
}

void MDIMenu::fitScreens() {
    const QSize area = ui_->mdiArea->viewport()->size();
    for (QMdiSubWindow* window : ui_->mdiArea->subWindowList()) {
        QSize wanted = window->sizeHint();
        const QSizePolicy room = window->widget()->sizePolicy();
        if (room.horizontalPolicy() == QSizePolicy::Expanding) {
            wanted.setWidth(area.width());
        }
        if (room.verticalPolicy() == QSizePolicy::Expanding) {
            wanted.setHeight(area.height());
        }
        window->resize(wanted.boundedTo(area).expandedTo(window->minimumSizeHint()));
        centre(window);
    }
}

bool MDIMenu::eventFilter(QObject* watched, QEvent* event) {
    if (watched == menuBar() && event->type() == QEvent::Shortcut) {
        return isForLockedMenu(*menuBar(), static_cast<const QShortcutEvent&>(*event));
    }
    if (watched != menuBar() && event->type() == QEvent::Resize) {
        fitScreens();
    }
    return QMainWindow::eventFilter(watched, event);
}

void MDIMenu::resizeEvent(QResizeEvent* event) {
    const int line = fontMetrics().height();
    const int lines = height() < lowDeskLines * line ? lowBannerLines : bannerLines;
    ui_->Picture1->setFixedHeight(lines * line);
    QMainWindow::resizeEvent(event);
}

void MDIMenu::closeEvent(QCloseEvent* event) {
    desk_.end.endProgram();
    event->accept();
}

}  // namespace tarn
