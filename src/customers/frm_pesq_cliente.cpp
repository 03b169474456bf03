#include "customers/frm_pesq_cliente.h"

#include <exception>
#include <utility>
#include <vector>

#include "common/boxes.h"
#include "platform/qt/wait_cursor.h"
#include "ui_frm_pesq_cliente.h"
#include "widgets/form_helpers.h"
#include "widgets/grid_foot.h"
#include "widgets/grid_model.h"
#include "widgets/grid_view.h"
#include "widgets/look.h"

namespace tarn {
namespace {

constexpr int visibleLines = 12;
constexpr RowNoun rowNoun{"cliente", "clientes"};

}  // namespace

FrmPesqCliente::FrmPesqCliente(DeskContext& desk, QWidget* parent)
    : DeskDialog(desk, Esc::Closes, parent),
      ui_(std::make_unique<Ui::FrmPesqCliente>()),
      customers_(new GridModel(customerGrid(), this)) {
    ui_->setupUi(this);
    prepareGrid(*ui_->sprDados, *customers_);
    ui_->gridFoot->serve(*ui_->sprDados, *customers_, rowNoun);
    prepareButtons();
    showPlaceholderWhole(*ui_->txtNmCli);
    fitToGrid(*this, *ui_->sprDados, visibleLines);
}

FrmPesqCliente::~FrmPesqCliente() = default;

void FrmPesqCliente::prepareButtons() {
    const Buttons buttons(this, setIcon);
    buttons.add(ui_->cmdPesquisar, "search", &FrmPesqCliente::cmdPesquisar_Click);
    buttons.add(ui_->cmdSelecionar, "select", &FrmPesqCliente::cmdSelecionar_Click,
                {ScreenKey::MainAct});
    buttons.add(ui_->cmdVoltar, "close", &QDialog::reject, {ScreenKey::Escape, ScreenKey::Close});
    connect(ui_->txtNmCli, &QLineEdit::returnPressed, ui_->cmdPesquisar, &QPushButton::click);
    // Not the signal that a desktop may want after a single click.
    connect(ui_->sprDados, &QTableView::doubleClicked, this, &FrmPesqCliente::cmdSelecionar_Click);
}

// What goes wrong in here beyond the request is not shown: the search can be repeated.
void FrmPesqCliente::cmdPesquisar_Click() {
    const WaitCursor hourglass;
    try {
        const auto show = [this](std::vector<GridRow> lines) {
            customers_->show(std::move(lines));
        };
        if (!searchCustomer(desk_.environment, desk_.session, ui_->txtNmCli->text().toStdString(),
                            show)) {
            ui_->txtNmCli->setFocus();
        }
    } catch (const std::exception&) {
        return;
    }
}

void FrmPesqCliente::cmdSelecionar_Click() {
    if (customers_->rowCount() == 0) {
        inform(desk_.environment, "Faça uma pesquisa para selecionar um cliente.     ",
               box_title::notice);
        return;
    }
    const QModelIndex activate = ui_->sprDados->currentIndex();
    const GridRow& line = customers_->line(activate.isValid() ? activate.row() : 0);
    emit chosen({.id = line.text(CustomerColumn::Id), .name = line.text(CustomerColumn::Name)});
    accept();
}

// Enter chooses the grid's row; elsewhere it has been taken.
void FrmPesqCliente::enterPressed() {
    if (ui_->sprDados->hasFocus() && ui_->sprDados->currentIndex().isValid()) {
        cmdSelecionar_Click();
    }
}

}  // namespace tarn
