#include "billing/frm_mensagem_alerta.h"

#include "ui_frm_mensagem_alerta.h"

namespace tarn {

frmMensagemAlerta::frmMensagemAlerta(Sessao& session, AlertMode mode, QWidget* parent)
    : QDialog(parent), session_(session), ui_(std::make_unique<Ui::frmMensagemAlerta>()) {
    ui_->setupUi(this);
    const bool outOfStock = mode == AlertMode::OutOfStock;
    ui_->cmdOk->setVisible(!outOfStock);
    ui_->cmdCancelar->setVisible(!outOfStock);
    ui_->cmdVoltar->setVisible(outOfStock);
    if (outOfStock) {
        ui_->Label1->setText(
            QStringLiteral("Produto(s) sem saldo no estoque. Favor alimentar o estoque."));
    }
    // CR LF, CR and LF are one line end each (decision D112); so the widget reads them.
    ui_->txtMensagem->setPlainText(QString::fromStdString(session_.TextoMensagem));
    ui_->txtMensagem->setMinimumSize(fontMetrics().averageCharWidth() * 64,
                                     fontMetrics().lineSpacing() * 10);
    connect(ui_->cmdOk, &QPushButton::clicked, this, [this] { respond("S"); });
    connect(ui_->cmdCancelar, &QPushButton::clicked, this, [this] { respond("N"); });
    connect(ui_->cmdVoltar, &QPushButton::clicked, this, &QDialog::reject);
}

frmMensagemAlerta::~frmMensagemAlerta() = default;

void frmMensagemAlerta::respond(const char* answer) {
    session_.ConfirmaMensagem = answer;
    accept();
}

void ScreenAlert::show(AlertMode mode) {
    frmMensagemAlerta(session_, mode, screen_).exec();
}

}  // namespace tarn
