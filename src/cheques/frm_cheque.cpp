#include "cheques/frm_cheque.h"

#include <QApplication>
#include <QKeyEvent>
#include <utility>

#include "gateway/answer.h"
#include "ui_frm_cheque.h"
#include "widgets/enter_presses_button.h"
#include "widgets/field_families.h"
#include "widgets/look.h"

namespace tarn {
namespace {

constexpr int maximoNumero = 15;
constexpr int maximoSerie = 15;
constexpr int maximoValor = 20;
constexpr int maximoFavorecido = 50;
constexpr int maximoObservacao = 250;
// Widths and heights in characters and lines.
constexpr int larguraTela = 76;
constexpr int larguraCurta = 26;
constexpr int linhasObservacao = 5;
constexpr int esperaDoClique = 20;  // milliseconds between two looks at the mouse

bool ehEnter(const QKeyEvent& tecla) {
    return tecla.key() == Qt::Key_Return || tecla.key() == Qt::Key_Enter;
}

}  // namespace

frmCheque::frmCheque(DeskContext& desk, QWidget* parent)
    : QDialog(parent), desk_(desk), ui_(std::make_unique<Ui::frmCheque>()) {
    ui_->setupUi(this);
    espera_.setObjectName(QStringLiteral("Espera"));
    espera_.setSingleShot(true);
    connect(&espera_, &QTimer::timeout, this, &frmCheque::Espera_Timer);
    preparaCampos();
    preparaBotoes();
}

frmCheque::~frmCheque() = default;

void frmCheque::preparaCampos() {
    Environment& ambiente = desk_.ambiente;
    ui_->cboBancoAgConta->installEventFilter(this);
    ui_->txtNumeroCheque->setMaxLength(maximoNumero);
    ui_->txtSerie->setMaxLength(maximoSerie);
    ui_->txtValor->setMaxLength(maximoValor);
    ui_->txtFavorecido->setMaxLength(maximoFavorecido);
    ui_->txtObservacao->setMaxLength(maximoObservacao);
    auto* numero = new FieldController(ui_->txtNumeroCheque, KeyFilter::NumeroInteiro, ambiente);
    auto* serie = new FieldController(ui_->txtSerie, KeyFilter::None, ambiente,
                                      FieldController::EnterKey::TabOnly);
    new MoneyField(ui_->txtValor, ambiente);
    new FieldController(ui_->txtFavorecido, KeyFilter::None, ambiente,
                        FieldController::EnterKey::TabOnly);
    new DateField(ui_->txtDtDeposito, KeyFilter::NumeroInteiro, ambiente,
                  DateField::Test::Calendar);
    onlyTakes(*ui_->txtNumeroCheque, QStringLiteral("[0-9]*"), ambiente.machine);
    onlyTakes(*ui_->txtValor, QStringLiteral("[0-9.,]*"), ambiente.machine);
    for (const FieldController* chave : {numero, serie}) {
        connect(chave, &FieldController::wasLeft, &espera_, [this] { espera_.start(0); });
    }
    const int caractere = fontMetrics().averageCharWidth();
    ui_->cboBancoAgConta->setMinimumWidth(caractere * larguraTela);
    for (QLineEdit* curto :
         {ui_->txtNumeroCheque, ui_->txtSerie, ui_->txtValor, ui_->txtDtDeposito}) {
        curto->setFixedWidth(caractere * larguraCurta);
    }
    ui_->txtObservacao->setVisibleLines(linhasObservacao);
}

void frmCheque::preparaBotoes() {
    const int lado = fontMetrics().height() * 2;
    ui_->cmdImprimir->setIcon(figura(QStringLiteral("print_cheque")));
    ui_->cmdCancelar->setIcon(figura(QStringLiteral("give_up")));
    for (QPushButton* botao : {ui_->cmdImprimir, ui_->cmdCancelar}) {
        botao->setIconSize({lado, lado});
    }
    connect(ui_->cmdImprimir, &QPushButton::clicked, this, &frmCheque::cmdImprimir_Click);
    connect(ui_->cmdCancelar, &QPushButton::clicked, this, &frmCheque::cmdCancelar_Click);
}

void frmCheque::carrega() {
    Carrega_CboBancoAgConta();
    ui_->txtDtDeposito->setText(QString::fromStdString(desk_.sessao.DATA));
}

void frmCheque::Carrega_CboBancoAgConta() {
    auto contas = carregaContas(desk_.ambiente, desk_.sessao);
    if (!contas) {
        return;
    }
    contas_ = std::move(*contas);
    ui_->cboBancoAgConta->clear();
    for (const ContaBancaria& conta : contas_) {
        ui_->cboBancoAgConta->addItem(QString::fromStdString(conta.descricao), conta.ID_PES_BAN);
    }
    ui_->cboBancoAgConta->setCurrentIndex(0);
}

CamposCheque frmCheque::campos() const {
    CamposCheque campos{.numero = ui_->txtNumeroCheque->text().toStdString(),
                        .serie = ui_->txtSerie->text().toStdString(),
                        .valor = ui_->txtValor->text().toStdString(),
                        .favorecido = ui_->txtFavorecido->text().toStdString(),
                        .dataDeposito = ui_->txtDtDeposito->text().toStdString(),
                        .observacao = ui_->txtObservacao->text()};
    if (const int posicao = ui_->cboBancoAgConta->currentIndex(); posicao > 0) {
        campos.conta = contas_[static_cast<std::size_t>(posicao)];
    }
    return campos;
}

QWidget& frmCheque::campo(CampoDoCheque qual) const {
    switch (qual) {
        case CampoDoCheque::Numero:
            return *ui_->txtNumeroCheque;
        case CampoDoCheque::Serie:
            return *ui_->txtSerie;
        case CampoDoCheque::Valor:
            return *ui_->txtValor;
        case CampoDoCheque::Favorecido:
            return *ui_->txtFavorecido;
        case CampoDoCheque::DataDeposito:
            return *ui_->txtDtDeposito;
        case CampoDoCheque::Conta:
            break;
    }
    return *ui_->cboBancoAgConta;
}

bool frmCheque::recusado(const std::optional<RecusaDoCheque>& recusa) {
    if (recusa) {
        exclama(desk_.ambiente, recusa->texto);
        campo(recusa->campo).setFocus();
    }
    return recusa.has_value();
}

// Account, series and date stay for the next cheque of the book.
void frmCheque::esvazia() {
    for (QLineEdit* campo : {ui_->txtNumeroCheque, ui_->txtValor, ui_->txtFavorecido}) {
        campo->setText({});
    }
    ui_->txtObservacao->loadText({});
}

// Once the focus has settled, and not between the two halves of a click: the second one
// would be lost to the request.
void frmCheque::Espera_Timer() {
    if (QGuiApplication::mouseButtons() != Qt::NoButton ||
        QApplication::activePopupWidget() != nullptr) {
        espera_.start(esperaDoClique);
    } else {
        confereNumero();
    }
}

void frmCheque::confereNumero() {
    if (const auto recusa = recusaDoNumero(desk_.ambiente, desk_.sessao, campos())) {
        exclama(desk_.ambiente, recusa->texto);
    }
}

// A click that took the focus counts after what its leaving asks for.
void frmCheque::confereAntesDoClique() {
    if (espera_.isActive()) {
        espera_.stop();
        confereNumero();
    }
}

void frmCheque::cmdImprimir_Click() {
    confereAntesDoClique();
    const CamposCheque cheque = campos();
    if (recusado(recusaDosCampos(cheque)) ||
        recusado(recusaDoNumero(desk_.ambiente, desk_.sessao, cheque))) {
        return;
    }
    if (emiteCheque(desk_.ambiente, desk_.sessao, cheque)) {
        esvazia();
        ui_->txtNumeroCheque->setFocus();
    }
}

void frmCheque::cmdCancelar_Click() {
    confereAntesDoClique();
    reject();
}

bool frmCheque::eventFilter(QObject* watched, QEvent* event) {
    if (watched == ui_->cboBancoAgConta && event->type() == QEvent::KeyPress &&
        ehEnter(*static_cast<QKeyEvent*>(event))) {
        sendTab(*ui_->cboBancoAgConta);
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

void frmCheque::keyPressEvent(QKeyEvent* event) {
    if (!enterNoBotao(*this, *event)) {
        QDialog::keyPressEvent(event);
    }
}

void frmCheque::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (!event->spontaneous()) {
        ui_->cboBancoAgConta->setFocus();
    }
}

}  // namespace tarn
