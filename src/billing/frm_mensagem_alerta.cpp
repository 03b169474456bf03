#include "billing/frm_mensagem_alerta.h"

#include "runtime/text.h"
#include "ui_frm_mensagem_alerta.h"

namespace tarn {

frmMensagemAlerta::frmMensagemAlerta(Sessao& sessao, ModoAlerta modo, QWidget* parent)
    : QDialog(parent), sessao_(sessao), ui_(std::make_unique<Ui::frmMensagemAlerta>()) {
    ui_->setupUi(this);
    const bool semSaldo = modo == ModoAlerta::SemSaldo;
    ui_->cmdOk->setVisible(!semSaldo);
    ui_->cmdCancelar->setVisible(!semSaldo);
    ui_->cmdVoltar->setVisible(semSaldo);
    if (semSaldo) {
        ui_->Label1->setText(
            QStringLiteral("Produto(s) sem saldo no estoque. Favor alimentar o estoque."));
    }
    ui_->txtMensagem->setPlainText(
        QString::fromStdString(replaceAll(sessao_.TextoMensagem, "\n", "\r\n")));
    ui_->txtMensagem->setMinimumSize(fontMetrics().averageCharWidth() * 64,
                                     fontMetrics().lineSpacing() * 10);
    (semSaldo ? ui_->cmdVoltar : ui_->cmdOk)->setDefault(true);
    connect(ui_->cmdOk, &QPushButton::clicked, this, [this] { responde("S"); });
    connect(ui_->cmdCancelar, &QPushButton::clicked, this, [this] { responde("N"); });
    connect(ui_->cmdVoltar, &QPushButton::clicked, this, &QDialog::reject);
}

frmMensagemAlerta::~frmMensagemAlerta() = default;

void frmMensagemAlerta::responde(const char* resposta) {
    sessao_.ConfirmaMensagem = resposta;
    accept();
}

void AlertaNaTela::mostra(ModoAlerta modo) {
    frmMensagemAlerta(sessao_, modo, tela_).exec();
}

}  // namespace tarn
