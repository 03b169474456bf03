#include "cheques/frm_cheque.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <utility>

#include "common/boxes.h"
#include "platform/qt/acting_keys.h"
#include "ui_frm_cheque.h"
#include "widgets/field_families.h"
#include "widgets/form_helpers.h"
#include "widgets/look.h"

namespace tarn {
namespace {

constexpr int maxNumber = 15;
constexpr int maxSeries = 15;
constexpr int maxAmount = 20;
constexpr int maxPayee = 50;
constexpr int maxObservation = 250;
// Widths and heights in characters and lines.
constexpr int screenWidth = 76;
constexpr int shortWidth = 26;
constexpr int observationLines = 5;

}  // namespace

frmCheque::frmCheque(DeskContext& desk, QWidget* parent)
    : DeskDialog(desk, Esc::ClosesNothing, parent), ui_(std::make_unique<Ui::frmCheque>()) {
    ui_->setupUi(this);
    prepareFields();
    prepareButtons();
}

frmCheque::~frmCheque() = default;

void frmCheque::prepareFields() {
    Environment& environment = desk_.environment;
    ui_->cboBancoAgConta->installEventFilter(this);
    letEnterMoveOn(*ui_->cboBancoAgConta);
    ui_->cboBancoAgConta->view()->installEventFilter(this);
    ui_->txtNumeroCheque->setMaxLength(maxNumber);
    ui_->txtSerie->setMaxLength(maxSeries);
    ui_->txtValor->setMaxLength(maxAmount);
    ui_->txtFavorecido->setMaxLength(maxPayee);
    ui_->txtObservacao->setMaxLength(maxObservation);
    auto* number = new FieldController(ui_->txtNumeroCheque, KeyFilter::Integer, environment);
    auto* series = new FieldController(ui_->txtSerie, KeyFilter::None, environment,
                                       FieldController::EnterKey::TabOnly);
    new MoneyField(ui_->txtValor, environment);
    new FieldController(ui_->txtFavorecido, KeyFilter::None, environment,
                        FieldController::EnterKey::TabOnly);
    new DateField(ui_->txtDtDeposito, KeyFilter::Integer, environment, DateField::Test::Calendar);
    for (const FieldController* key : {number, series}) {
        connect(key, &FieldController::wasLeft, this, &frmCheque::checkOnLeaving);
    }
    const int character = fontMetrics().averageCharWidth();
    ui_->cboBancoAgConta->setMinimumWidth(character * screenWidth);
    for (QLineEdit* shortField :
         {ui_->txtNumeroCheque, ui_->txtSerie, ui_->txtValor, ui_->txtDtDeposito}) {
        shortField->setFixedWidth(character * shortWidth);
    }
    ui_->txtObservacao->setVisibleLines(observationLines);
}

void frmCheque::prepareButtons() {
    const Buttons buttons(this, setLargeIcon);
    buttons.add(ui_->cmdImprimir, "print_cheque", &frmCheque::cmdImprimir_Click,
                {ScreenKey::Print, ScreenKey::MainAct});
    buttons.add(ui_->cmdCancelar, "give_up", &QDialog::reject, {ScreenKey::Close});
}

void frmCheque::load() {
    Carrega_CboBancoAgConta();
    ui_->txtDtDeposito->setText(QString::fromStdString(desk_.session.DATA));
}

void frmCheque::Carrega_CboBancoAgConta() {
    auto accounts = loadAccounts(desk_.environment, desk_.session);
    if (!accounts) {
        return;
    }
    accounts_ = std::move(*accounts);
    ui_->cboBancoAgConta->clear();
    for (const BankAccount& account : accounts_) {
        ui_->cboBancoAgConta->addItem(QString::fromStdString(account.description),
                                      account.ID_PES_BAN);
    }
    ui_->cboBancoAgConta->setCurrentIndex(0);
}

ChequeFields frmCheque::fields() const {
    ChequeFields fields{.number = ui_->txtNumeroCheque->text().toStdString(),
                        .series = ui_->txtSerie->text().toStdString(),
                        .value = ui_->txtValor->text().toStdString(),
                        .payee = ui_->txtFavorecido->text().toStdString(),
                        .depositDate = ui_->txtDtDeposito->text().toStdString(),
                        .observation = ui_->txtObservacao->text()};
    if (const int position = ui_->cboBancoAgConta->currentIndex(); position > 0) {
        fields.account = accounts_[static_cast<std::size_t>(position)];
    }
    return fields;
}

bool frmCheque::refused(const std::optional<ChequeRefusal>& refuse) {
    if (refuse) {
        warn(desk_.environment, refuse->text);
        focusField(refuse->field, {{ChequeField::Account, ui_->cboBancoAgConta},
                                   {ChequeField::Number, ui_->txtNumeroCheque},
                                   {ChequeField::Series, ui_->txtSerie},
                                   {ChequeField::Amount, ui_->txtValor},
                                   {ChequeField::Payee, ui_->txtFavorecido},
                                   {ChequeField::DepositDate, ui_->txtDtDeposito}});
    }
    return refuse.has_value();
}

// Account, series and date stay for the next cheque of the book.
void frmCheque::clearFields() {
    for (QLineEdit* field : {ui_->txtNumeroCheque, ui_->txtValor, ui_->txtFavorecido}) {
        field->setText({});
    }
    ui_->txtObservacao->loadText({});
}

// Once the focus has settled, with the fields as they were left. Until then and while the
// server answers all input waits, a click that took the focus too; it counts afterwards.
void frmCheque::checkOnLeaving() {
    leaving_ = std::make_unique<Leaving>();
    QMetaObject::invokeMethod(
        this,
        [this, left = fields()] {
            std::optional<ChequeRefusal> refusal;
            {
                const std::unique_ptr<Leaving> ends = std::move(leaving_);
                refusal = numberRefusal(desk_.environment, desk_.session, left);
            }
            if (refusal) {
                warn(desk_.environment, refusal->text);
            }
        },
        Qt::QueuedConnection);
}

void frmCheque::cmdImprimir_Click() {
    const ChequeFields cheque = fields();
    if (refused(fieldRefusal(cheque)) ||
        refused(numberRefusal(desk_.environment, desk_.session, cheque))) {
        return;
    }
    if (issueCheque(desk_.environment, desk_.session, cheque)) {
        clearFields();
        ui_->txtNumeroCheque->setFocus();
    }
}

bool frmCheque::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || !isEnter(*static_cast<QKeyEvent*>(event))) {
        return QDialog::eventFilter(watched, event);
    }
    if (watched == ui_->cboBancoAgConta->view()) {
        chooseFromOpenList(*event);
    }
    sendTab(*ui_->cboBancoAgConta);
    return true;
}

// At once, so that what is typed next goes into the next field and not into the list.
void frmCheque::chooseFromOpenList(QEvent& enter) {
    QAbstractItemView& list = *ui_->cboBancoAgConta->view();
    list.removeEventFilter(this);
    QCoreApplication::sendEvent(&list, &enter);
    list.installEventFilter(this);
}

void frmCheque::opened() {
    ui_->cboBancoAgConta->setFocus();
}

}  // namespace tarn
