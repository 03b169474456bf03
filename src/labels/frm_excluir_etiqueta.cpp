#include "labels/frm_excluir_etiqueta.h"

#include <QKeyEvent>
#include <QShowEvent>

#include "labels/deletion.h"
#include "labels/label_values.h"
#include "ui_frm_excluir_etiqueta.h"
#include "widgets/combo_items.h"
#include "widgets/enter_presses_button.h"
#include "widgets/field_controller.h"
#include "widgets/look.h"

namespace tarn {

frmExcluirEtiqueta::frmExcluirEtiqueta(DeskContext& desk, const labels::ValoresEtiquetas& valores,
                                       QWidget* parent)
    : QDialog(parent),
      desk_(desk),
      valores_(valores),
      ui_(std::make_unique<Ui::frmExcluirEtiqueta>()) {
    ui_->setupUi(this);
    for (QLineEdit* campo : {ui_->txtDe, ui_->txtAte}) {
        new FieldController(campo, KeyFilter::NumeroVirgula, desk.ambiente);
    }
    poeFigura(*ui_->cmdOk, "cancel_order");
    poeFigura(*ui_->cmdCancelar, "give_up");
    connect(ui_->cmdOk, &QPushButton::clicked, this, &frmExcluirEtiqueta::cmdOk_Click);
    connect(ui_->cmdCancelar, &QPushButton::clicked, this, &QDialog::reject);
    ui_->txtDe->setFocus();
}

frmExcluirEtiqueta::~frmExcluirEtiqueta() = default;

void frmExcluirEtiqueta::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (!event->spontaneous()) {
        ativa();
    }
}

void frmExcluirEtiqueta::ativa() {
    const ItemLista item{valores_.MotivoImpressao, 0};
    encheLista(*ui_->cboMotivo, std::span(&item, 1));
}

void frmExcluirEtiqueta::cmdOk_Click() {
    const std::string de = ui_->txtDe->text().toStdString();
    const std::string ate = ui_->txtAte->text().toStdString();
    switch (
        labels::excluiEtiquetas(desk_.ambiente, desk_.sessao, valores_.MotivoImpressao, de, ate)) {
        case labels::Exclusao::FaltaDe:
            ui_->txtDe->setFocus();
            break;
        case labels::Exclusao::FaltaAte:
            ui_->txtAte->setFocus();
            break;
        case labels::Exclusao::SemNumero:
            break;
        case labels::Exclusao::Enviada:
            accept();
            break;
    }
}

void frmExcluirEtiqueta::keyPressEvent(QKeyEvent* event) {
    if (!enterNoBotao(*this, *event)) {
        QDialog::keyPressEvent(event);
    }
}

}  // namespace tarn
