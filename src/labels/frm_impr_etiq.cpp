#include "labels/frm_impr_etiq.h"

#include <algorithm>
#include <vector>

#include "common/boxes.h"
#include "labels/customer_selection.h"
#include "labels/print_selection.h"
#include "platform/qt/wait_cursor.h"
#include "ui_frm_impr_etiq.h"
#include "widgets/field_families.h"
#include "widgets/form_helpers.h"
#include "widgets/grid_foot.h"
#include "widgets/grid_model.h"
#include "widgets/grid_view.h"
#include "widgets/look.h"
#include "widgets/progress_window.h"

namespace tarn {
namespace {

constexpr int visibleLines = 12;
constexpr RowNoun rowNoun{"cliente", "clientes"};

commands::ChosenItem chosen(const QComboBox& list) {
    return {.position = std::max(list.currentIndex(), 0), .data = currentItemData(list)};
}

std::string listParameter(const QComboBox& list) {
    std::vector<std::int32_t> data;
    data.reserve(static_cast<std::size_t>(list.count()));
    for (int i = 0; i < list.count(); ++i) {
        data.push_back(list.itemData(i).toInt());
    }
    return labels::MontaURL(data, list.currentIndex());
}

}  // namespace

FrmImprEtiq::FrmImprEtiq(DeskContext& desk, QWidget* parent)
    : DeskDialog(desk, Esc::ClosesNothing, parent),
      ui_(std::make_unique<Ui::FrmImprEtiq>()),
      customers_(new GridModel(labels::selectionGrid(), this)) {
    ui_->setupUi(this);
    prepareFields();
    prepareButtons();
    prepareCustomerGrid();
    connect(ui_->cboPais, &QComboBox::activated, this, &FrmImprEtiq::cboPais_Click);
    connect(ui_->cboEstado, &QComboBox::activated, this, &FrmImprEtiq::cboEstado_Click);
    ui_->cboFilial->setFocus();
}

FrmImprEtiq::~FrmImprEtiq() = default;

void FrmImprEtiq::prepareFields() {
    for (QLineEdit* field : {ui_->txtCepDe, ui_->txtCepAte, ui_->txtVlrDe, ui_->txtVlrAte,
                             ui_->txtQtde, ui_->txtQtAte}) {
        new FieldController(field, KeyFilter::Decimal, desk_.environment);
    }
    for (QLineEdit* field : {ui_->txtDtVndDe, ui_->txtDtVndAte}) {
        new DateField(field, KeyFilter::Decimal, desk_.environment);
    }
}

void FrmImprEtiq::prepareCustomerGrid() {
    prepareGrid(*ui_->sprDados, *customers_);
    ui_->gridFoot->serve(*ui_->sprDados, *customers_, rowNoun);
    fitToGrid(*this, *ui_->sprDados, visibleLines);
}

void FrmImprEtiq::prepareButtons() {
    const Buttons buttons(this, setIcon);
    buttons.add(ui_->cmdPesquisar, "search", &FrmImprEtiq::cmdPesquisar_Click);
    buttons.add(ui_->cmdImprimir, "print", &FrmImprEtiq::cmdImprimir_Click,
                {ScreenKey::Print, ScreenKey::MainAct});
    buttons.add(ui_->cmdVoltar, "close", &QDialog::reject, {ScreenKey::Close});
}

void FrmImprEtiq::load() {
    const WaitCursor hourglass;
    CarregaCboPais();
    CarregaCboFilial();
}

// Standing on the first item counts as a click, where there is an item to stand on.
void FrmImprEtiq::CarregaCboPais() {
    fillList(*ui_->cboPais, labels::loadCountries(desk_.environment, desk_.session));
    if (ui_->cboPais->count() > 0) {
        cboPais_Click();
    }
}

void FrmImprEtiq::CarregaCboFilial() {
    fillList(*ui_->cboFilial, labels::loadBranches(desk_.environment, desk_.session));
}

void FrmImprEtiq::cboPais_Click() {
    ui_->cboEstado->clear();
    ui_->cboCidade->clear();
    const std::int32_t country = currentItemData(*ui_->cboPais);
    ui_->cboEstado->setEnabled(country != labels::allItemsData);
    if (country == labels::allItemsData) {
        ui_->cboCidade->setEnabled(false);
        return;
    }
    fillList(*ui_->cboEstado, labels::loadStates(desk_.environment, desk_.session, country));
    if (ui_->cboEstado->count() > 0) {
        cboEstado_Click();
    }
}

void FrmImprEtiq::cboEstado_Click() {
    ui_->cboCidade->clear();
    const std::int32_t state = currentItemData(*ui_->cboEstado);
    ui_->cboCidade->setEnabled(state != labels::allItemsData);
    if (state != labels::allItemsData) {
        fillList(*ui_->cboCidade, labels::loadTowns(desk_.environment, desk_.session, state));
    }
}

void FrmImprEtiq::cmdPesquisar_Click() {
    ui_->cmdPesquisar->setFocus();  // pressed by its key, too: a date field completes its date
    const auto text = [](const QLineEdit* field) { return field->text().toStdString(); };
    const commands::LabelFilter filter{.branches = listParameter(*ui_->cboFilial),
                                       .country = chosen(*ui_->cboPais),
                                       .state = chosen(*ui_->cboEstado),
                                       .town = chosen(*ui_->cboCidade),
                                       .product = text(ui_->txtProd),
                                       .postalCodeFrom = text(ui_->txtCepDe),
                                       .postalCodeTo = text(ui_->txtCepAte),
                                       .saleFrom = text(ui_->txtDtVndDe),
                                       .saleTo = text(ui_->txtDtVndAte),
                                       .amountFrom = text(ui_->txtVlrDe),
                                       .amountTo = text(ui_->txtVlrAte),
                                       .quantityFrom = text(ui_->txtQtde),
                                       .quantityTo = text(ui_->txtQtAte),
                                       .byPostalCode = ui_->optCep->isChecked()};
    if (const auto refusal = labels::dateRefusal(filter)) {
        tell(desk_.environment, refusal->text, "Alert");
        return focusField(refusal->field, {{labels::SaleDate::From, ui_->txtDtVndDe},
                                           {labels::SaleDate::To, ui_->txtDtVndAte}});
    }
    customers_->show(labels::searchCustomers(desk_.environment, desk_.session, filter));
}

void FrmImprEtiq::cmdImprimir_Click() {
    ProgressWindow progress(*this);
    labels::printSelection(desk_.environment, customers_->lines(), progress.notices());
}

}  // namespace tarn
