#include "billing/frm_oft.h"

#include <QCloseEvent>
#include <QKeyEvent>

#include "billing/frm_manut_det_oft.h"
#include "billing/frm_mensagem_alerta.h"
#include "billing/generate_note.h"
#include "billing/observations.h"
#include "billing/order_sheet.h"
#include "common/boxes.h"
#include "platform/qt/tick.h"
#include "platform/qt/wait_cursor.h"
#include "ui_frm_oft.h"
#include "widgets/form_helpers.h"
#include "widgets/gesture_filter.h"
#include "widgets/grid_foot.h"
#include "widgets/grid_model.h"
#include "widgets/grid_view.h"
#include "widgets/look.h"

namespace tarn {
namespace {

constexpr int intervalMs = 60000;
constexpr RowNoun rowNoun{"ordem", "ordens", true};

}  // namespace

FrmOFT::FrmOFT(DeskContext& desk)
    : desk_(desk),
      ui_(std::make_unique<Ui::FrmOFT>()),
      orders_(new GridModel(orderGrid(), this)),
      timer_(new Tick(intervalMs, this)) {
    ui_->setupUi(this);
    prepareGrid(*ui_->sprDados, *orders_);
    ui_->gridFoot->serve(*ui_->sprDados, *orders_, rowNoun);
    prepareButtons();
    timer_->setObjectName(QStringLiteral("Timer"));
    connect(timer_, &Tick::ticked, this, &FrmOFT::Timer_Tick);
}

FrmOFT::~FrmOFT() = default;

void FrmOFT::prepareButtons() {
    const Buttons buttons(this, setLargeIcon);
    buttons.add(ui_->cmdSelecionar, "generate_note", &FrmOFT::cmdSelecionar_Click,
                {ScreenKey::MainAct});
    buttons.add(ui_->CmdFechar, "close", &FrmOFT::CmdFechar_Click,
                {ScreenKey::Escape, ScreenKey::Close});
    buttons.add(ui_->CmdAtualizar, "refresh", &FrmOFT::loadSpread, {ScreenKey::Refresh});
    buttons.add(ui_->CmdCanOft, "cancel_order", &FrmOFT::CmdCanOft_Click);
    buttons.add(ui_->cmdImprimirOF, "print_order", &FrmOFT::cmdImprimirOF_Click,
                {ScreenKey::Print});
    buttons.add(ui_->cmdDetOFT, "edit_order", &FrmOFT::cmdDetOFT_Click);
}

void FrmOFT::load() {
    const WaitCursor hourglass;
    emit loaded();
    timer_->start();
    loadSpread();
    ui_->sprDados->setFocus();
}

void FrmOFT::loadSpread() {
    orders_->show({});
    orders_->show(loadOrders(desk_.environment, desk_.session));
}

// Nobody asked for it: what is typed or clicked elsewhere meanwhile still counts, but the
// rows here are others afterwards.
void FrmOFT::Timer_Tick() {
    const Unasked tick(InputGate::ofApplication(), this);
    loadSpread();
}

std::optional<GridRow> FrmOFT::selectedOrder() {
    if (orders_->rowCount() == 0) {
        warn(desk_.environment, "Selecione a ordem de faturamento.     ", box_title::notice);
        return std::nullopt;
    }
    const QModelIndex activate = ui_->sprDados->currentIndex();
    return orders_->line(activate.isValid() ? activate.row() : 0);
}

bool FrmOFT::observationsAccepted(const GridRow& order) {
    ScreenAlert alert(desk_.session, this);
    return Seleciona_Obs_Vnd_X_Ord(desk_.environment, desk_.session, alert,
                                   order.text(OrderColumn::Order)) == Next::GoOn;
}

void FrmOFT::cmdSelecionar_Click() {
    timer_->stop();
    const auto order = selectedOrder();
    if (!order) {
        return;
    }
    ScreenAlert alert(desk_.session, this);
    if (generateNote(desk_.environment, desk_.session, alert, order->text(OrderColumn::Order)) ==
        GenerationEnd::Finished) {
        loadSpread();
        timer_->start();
        ignoreClicksHere(*ui_->cmdSelecionar);  // the next order is the selected one
    }
}

void FrmOFT::CmdCanOft_Click() {
    const auto order = selectedOrder();
    if (order && cancelOrder(desk_.environment, desk_.session, *order)) {
        loadSpread();
    }
}

void FrmOFT::cmdImprimirOF_Click() {
    const auto order = selectedOrder();
    if (order && observationsAccepted(*order)) {
        printSelectedOrder(desk_.environment, desk_.session, order->text(OrderColumn::Order));
    }
}

void FrmOFT::cmdDetOFT_Click() {
    const auto order = selectedOrder();
    if (!order || !observationsAccepted(*order)) {
        return;
    }
    // The list may have been renewed under the observation: the row that is active now is the
    // one that opens, and without rows the one whose observation was accepted.
    frmManutDetOFT dialog(desk_, orders_->rowCount() > 0 ? *selectedOrder() : *order, this);
    connect(&dialog, &frmManutDetOFT::saved, this, [this] {
        loadSpread();
        timer_->start();
    });
    dialog.exec();
}

void FrmOFT::CmdFechar_Click() {
    closeScreen(*this);
}

// No shortcut: that would also be taken from a dialog that is just opening over this
// screen, and close the screen under it.
void FrmOFT::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        ui_->CmdFechar->click();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void FrmOFT::closeEvent(QCloseEvent* event) {
    timer_->stop();
    emit closed();
    event->accept();
}

}  // namespace tarn
