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

frmExcluirEtiqueta::frmExcluirEtiqueta(DeskContext& desk, const labels::LabelValues& values,
                                       QWidget* parent)
    : QDialog(parent),
      desk_(desk),
      values_(values),
      ui_(std::make_unique<Ui::frmExcluirEtiqueta>()) {
    ui_->setupUi(this);
    for (QLineEdit* field : {ui_->txtDe, ui_->txtAte}) {
        new FieldController(field, KeyFilter::Decimal, desk.environment);
    }
    setIcon(*ui_->cmdOk, "cancel_order");
    setIcon(*ui_->cmdCancelar, "give_up");
    connect(ui_->cmdOk, &QPushButton::clicked, this, &frmExcluirEtiqueta::cmdOk_Click);
    connect(ui_->cmdCancelar, &QPushButton::clicked, this, &QDialog::reject);
    ui_->txtDe->setFocus();
}

frmExcluirEtiqueta::~frmExcluirEtiqueta() = default;

void frmExcluirEtiqueta::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (!event->spontaneous()) {
        activate();
    }
}

void frmExcluirEtiqueta::activate() {
    const ListItem item{values_.MotivoImpressao, 0};
    fillList(*ui_->cboMotivo, std::span(&item, 1));
}

void frmExcluirEtiqueta::cmdOk_Click() {
    const std::string from = ui_->txtDe->text().toStdString();
    const std::string to = ui_->txtAte->text().toStdString();
    switch (
        labels::deleteLabels(desk_.environment, desk_.session, values_.MotivoImpressao, from, to)) {
        case labels::Deletion::MissingFrom:
            ui_->txtDe->setFocus();
            break;
        case labels::Deletion::MissingTo:
            ui_->txtAte->setFocus();
            break;
        case labels::Deletion::NotANumber:
            break;
        case labels::Deletion::Sent:
            accept();
            break;
    }
}

void frmExcluirEtiqueta::keyPressEvent(QKeyEvent* event) {
    if (!enterPressesButton(*this, *event)) {
        QDialog::keyPressEvent(event);
    }
}

}  // namespace tarn
