#include "labels/frm_excluir_etiqueta.h"

#include <QKeyEvent>
#include <QShowEvent>

#include "common/boxes.h"
#include "labels/queue.h"
#include "ui_frm_excluir_etiqueta.h"
#include "widgets/enter_presses_button.h"
#include "widgets/field_controller.h"
#include "widgets/form_helpers.h"
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
    if (const auto refusal = labels::rangeRefusal(from, to)) {
        inform(desk_.environment, refusal->text);
        return focusField(refusal->field, {{labels::RangeField::From, ui_->txtDe},
                                           {labels::RangeField::To, ui_->txtAte}});
    }
    if (labels::deleteLabels(desk_.environment, desk_.session, values_.MotivoImpressao, from, to)) {
        accept();
    }
}

void frmExcluirEtiqueta::keyPressEvent(QKeyEvent* event) {
    if (!enterPressesButton(*this, *event)) {
        QDialog::keyPressEvent(event);
    }
}

}  // namespace tarn
