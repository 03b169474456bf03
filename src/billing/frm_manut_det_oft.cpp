#include "billing/frm_manut_det_oft.h"

#include <QTextDocument>
#include <algorithm>
#include <array>

#include "billing/order_maintenance.h"
#include "platform/message_boxes.h"
#include "ui_frm_manut_det_oft.h"
#include "widgets/enter_presses_button.h"
#include "widgets/field_families.h"
#include "widgets/look.h"

namespace tarn {
namespace {

constexpr int maximoObservacao = 500;
// Widths and heights in characters and lines.
constexpr int larguraCampo = 40;
constexpr int larguraNumero = 15;
constexpr int linhasObservacao = 7;  // all of its characters

// A number that the server holds is shown whole, also where it couldn't be typed.
void mostraNumero(QLineEdit& campo, const std::string& texto) {
    campo.setMaxLength(std::max(campo.maxLength(), static_cast<int>(texto.size())));
    campo.setText(QString::fromStdString(texto));
}

}  // namespace

frmManutDetOFT::frmManutDetOFT(DeskContext& desk, const OrdemFaturamento& ordem, QWidget* parent)
    : QDialog(parent), desk_(desk), ui_(std::make_unique<Ui::frmManutDetOFT>()) {
    ui_->setupUi(this);
    preparaCampos();
    preparaBotoes();
    carrega(ordem);
    ui_->txtObs->setFocus();
}

frmManutDetOFT::~frmManutDetOFT() = default;

void frmManutDetOFT::preparaCampos() {
    const int caractere = fontMetrics().averageCharWidth();
    QPalette paraLeitura = palette();
    paraLeitura.setColor(QPalette::Base, paraLeitura.color(QPalette::Window));
    for (QLineEdit* campo : findChildren<QLineEdit*>()) {
        campo->setMinimumWidth(caractere * larguraCampo);
        if (campo->isReadOnly()) {
            campo->setPalette(paraLeitura);
        }
    }
    for (QLineEdit* campo : {ui_->txtQtde, ui_->txtPesoBruto, ui_->txtPesoLiquido}) {
        campo->setMinimumWidth(caractere * larguraNumero);
    }
    new QuantityField(ui_->txtQtde, messagesQtde, desk_.ambiente);
    new QuantityField(ui_->txtPesoBruto, messagesPesoBruto, desk_.ambiente);
    new QuantityField(ui_->txtPesoLiquido, messagesPesoLiquido, desk_.ambiente);
    ui_->txtObs->setMaxLength(maximoObservacao);
    ui_->txtObs->setVisibleLines(linhasObservacao);
}

void frmManutDetOFT::preparaBotoes() {
    const int lado = fontMetrics().height() * 2;
    ui_->cmdOk->setIcon(figura(QStringLiteral("save")));
    ui_->cmdCancelar->setIcon(figura(QStringLiteral("give_up")));
    for (QPushButton* botao : {ui_->cmdOk, ui_->cmdCancelar}) {
        botao->setIconSize({lado, lado});
    }
    connect(ui_->cmdOk, &QPushButton::clicked, this, &frmManutDetOFT::cmdOk_Click);
    connect(ui_->cmdCancelar, &QPushButton::clicked, this, &QDialog::reject);
}

void frmManutDetOFT::carrega(const OrdemFaturamento& ordem) {
    const auto& celulas = ordem.celulas;
    const std::array<QLineEdit*, 8> paraLeitura{ui_->txtOrdFat, ui_->txtCliente,   ui_->txtEstab,
                                                ui_->txtTpNF,   ui_->txtDtEmissao, ui_->txtOrdCarga,
                                                ui_->txtTransp, ui_->txtMotorista};
    for (std::size_t i = 0; i < paraLeitura.size(); ++i) {
        const QString texto = QString::fromStdString(celulas[i]);
        paraLeitura[i]->setText(texto);
        paraLeitura[i]->setCursorPosition(0);
        if (!texto.isEmpty()) {  // whole, where the field is short
            paraLeitura[i]->setToolTip(Qt::convertFromPlainText(texto, Qt::WhiteSpaceNormal));
        }
    }
    ui_->txtObs->loadText(celulas[8]);
    mostraNumero(*ui_->txtQtde, celulas[9]);
    mostraNumero(*ui_->txtPesoBruto, celulas[10]);
    mostraNumero(*ui_->txtPesoLiquido, celulas[11]);
}

QLineEdit& frmManutDetOFT::campo(CampoDaOrdem qual) const {
    switch (qual) {
        case CampoDaOrdem::PesoBruto:
            return *ui_->txtPesoBruto;
        case CampoDaOrdem::PesoLiquido:
            return *ui_->txtPesoLiquido;
        case CampoDaOrdem::Quantidade:
            break;
    }
    return *ui_->txtQtde;
}

void frmManutDetOFT::cmdOk_Click() {
    const std::string ordem = ui_->txtOrdFat->text().toStdString();
    const std::string observacao = ui_->txtObs->text();
    const std::string quantidade = ui_->txtQtde->text().toStdString();
    const std::string pesoBruto = ui_->txtPesoBruto->text().toStdString();
    const std::string pesoLiquido = ui_->txtPesoLiquido->text().toStdString();
    const comando::DadosOrdem dados{.ordem = ordem,
                                    .observacao = observacao,
                                    .quantidade = quantidade,
                                    .pesoBruto = pesoBruto,
                                    .pesoLiquido = pesoLiquido};
    if (const auto recusa = recusaDosDados(dados)) {
        desk_.ambiente.boxes.show({std::string(recusa->texto), BoxIcon::Information, "Atenção"});
        campo(recusa->campo).setFocus();
        return;
    }
    if (gravaOrdem(desk_.ambiente, desk_.sessao, dados)) {
        emit gravou();
        accept();
    }
}

void frmManutDetOFT::keyPressEvent(QKeyEvent* event) {
    if (!enterNoBotao(*this, *event)) {
        QDialog::keyPressEvent(event);
    }
}

}  // namespace tarn
