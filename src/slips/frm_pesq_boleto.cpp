#include "slips/frm_pesq_boleto.h"

#include "common/boxes.h"
#include "slips/print_slips.h"
#include "slips/slip_search.h"
#include "ui_frm_pesq_boleto.h"
#include "widgets/field_controller.h"
#include "widgets/form_helpers.h"
#include "widgets/grid_foot.h"
#include "widgets/grid_model.h"
#include "widgets/grid_view.h"
#include "widgets/progress_window.h"

namespace tarn {
namespace {

constexpr int visibleLines = 14;
constexpr RowNoun rowNoun{"documento", "documentos"};
constexpr int numberWidth = 18;  // characters

std::string text(const QLineEdit& field) {
    return field.text().toStdString();
}

}  // namespace

frmPesqBoleto::frmPesqBoleto(DeskContext& desk, QWidget* parent)
    : DeskDialog(desk, Esc::ClosesNothing, parent),
      ui_(std::make_unique<Ui::frmPesqBoleto>()),
      documents_(new GridModel(slipGrid(), this)) {
    ui_->setupUi(this);
    prepareGrid(*ui_->sprDados, *documents_);
    ui_->gridFoot->serve(*ui_->sprDados, *documents_, rowNoun);
    prepareFields();
    prepareButtons();
    fitToGrid(*this, *ui_->sprDados, visibleLines);
    ui_->cboFilial->setFocus();  // txtCliente takes no typing (decision D116)
}

frmPesqBoleto::~frmPesqBoleto() = default;

void frmPesqBoleto::prepareFields() {
    prepareCustomerField(*ui_->txtCliente, desk_.environment);
    prepareDates({ui_->txtDtEmsDe, ui_->txtDtEmsAte, ui_->txtDtVncDe, ui_->txtDtVncAte},
                 desk_.environment);
    QLineEdit& number = *ui_->txtNr_Bol_Banc;
    new FieldController(&number, KeyFilter::Decimal, desk_.environment);
    number.setFixedWidth(numberWidth * number.fontMetrics().averageCharWidth());
}

void frmPesqBoleto::prepareButtons() {
    const Buttons buttons(this, prepareButton);
    buttons.add(ui_->cmdPesqCli, "search_customer", &frmPesqBoleto::cmdPesqCli_Click);
    buttons.add(ui_->cmdLimpar, "clear", [this] { takeCustomer({}); });
    buttons.add(ui_->cmdPesquisar, "search", &frmPesqBoleto::cmdPesquisar_Click);
    buttons.add(ui_->cmdImprimir, "print", &frmPesqBoleto::cmdImprimir_Click,
                {ScreenKey::Print, ScreenKey::MainAct});
    buttons.add(ui_->cmdVoltar, "close", &QDialog::reject, {ScreenKey::Close});
    connect(ui_->chkInc_Carteira, &QCheckBox::clicked, this, &frmPesqBoleto::chkInc_Carteira_Click);
}

void frmPesqBoleto::takeCustomer(const Customer& customer) {
    showCustomer(*ui_->txtCliente, customer.id, customer.name);
}

// The first activation comes when the user sees the screen.
void frmPesqBoleto::opened() {
    QMetaObject::invokeMethod(this, &frmPesqBoleto::activate, Qt::QueuedConnection);
}

void frmPesqBoleto::activate() {
    Carrega_CboFilial();
    Carrega_Cart_Cobranca();
}

void frmPesqBoleto::Carrega_CboFilial() {
    fillList(*ui_->cboFilial, branchesForFilter(desk_.environment, desk_.session));
}

void frmPesqBoleto::Carrega_Cart_Cobranca() {
    fillList(*ui_->cboCartCob, portfoliosForFilter(desk_.environment, desk_.session));
}

void frmPesqBoleto::refuse(const SlipRefusal& reason) {
    inform(desk_.environment, reason.text);
    focusField(reason.field, {{SlipSearchField::IssuedFrom, ui_->txtDtEmsDe},
                              {SlipSearchField::DueTo, ui_->txtDtVncAte},
                              {SlipSearchField::PortfolioField, ui_->cboCartCob},
                              {SlipSearchField::BankNumber, ui_->txtNr_Bol_Banc}});
}

void frmPesqBoleto::cmdPesqCli_Click() {
    emit customerWanted();
    if (!desk_.end.ended()) {
        activate();
    }
}

void frmPesqBoleto::cmdPesquisar_Click() {
    const SlipFilter filter{.documents = {.customer = customerId(*ui_->txtCliente),
                                          .branch = currentItemData(*ui_->cboFilial),
                                          .dueFrom = text(*ui_->txtDtVncDe),
                                          .dueTo = text(*ui_->txtDtVncAte),
                                          .issuedFrom = text(*ui_->txtDtEmsDe),
                                          .issuedTo = text(*ui_->txtDtEmsAte)},
                            .portfolio = currentItemData(*ui_->cboCartCob),
                            .includesPortfolio = ui_->chkInc_Carteira->isChecked()};
    if (const auto reason = searchRefusal(filter.documents, ui_->cboCartCob->currentIndex())) {
        refuse(*reason);
        return;
    }
    show(filter);
}

void frmPesqBoleto::show(const SlipFilter& filter) {
    auto lines = searchSlips(desk_.environment, desk_.session, filter);
    if (!lines) {
        return;
    }
    documents_->show(std::move(*lines));
    if (documents_->rowCount() == 0) {
        warn(desk_.environment, "Não foi encontrado nenhum documento para esta pesquisa. ");
    }
}

void frmPesqBoleto::cmdImprimir_Click() {
    const SlipRun request{.next = text(*ui_->txtNr_Bol_Banc),
                          .includesPortfolio = ui_->chkInc_Carteira->isChecked()};
    if (const auto reason = printRefusal(ui_->cboCartCob->currentIndex(), request.next)) {
        refuse(*reason);
        return;
    }
    const auto portfolio =
        loadPortfolio(desk_.environment, desk_.session, currentItemData(*ui_->cboCartCob));
    if (!portfolio) {
        return;
    }
    ProgressWindow progress(*this);
    printSlips(desk_.environment, desk_.session, *portfolio, request, documents_->lines(),
               {.untick = [this](std::size_t i) { documents_->tick(static_cast<int>(i), false); },
                .passed = [this] { ui_->txtNr_Bol_Banc->clear(); },
                .progress = progress.notices()});
}

void frmPesqBoleto::chkInc_Carteira_Click(bool ticked) {
    if (ticked) {
        inform(desk_.environment,
               "Esta opção só deverá ser selecionada quando se deseja incluir, no momento da "
               "impressão do boleto, um documento que esteja sem carteira de cobrança associada. A "
               "carteira a ser associada é a selecionada no combo acima.      ");
    }
}

}  // namespace tarn
