#include "labels/frm_imprimir_etiqueta.h"

#include <QKeyEvent>
#include <QShowEvent>

#include "labels/print_labels.h"
#include "labels/queue.h"
#include "ui_frm_imprimir_etiqueta.h"
#include "widgets/enter_presses_button.h"
#include "widgets/field_controller.h"
#include "widgets/form_helpers.h"
#include "widgets/look.h"
#include "widgets/progress_window.h"

namespace tarn {

frmImprimirEtiqueta::frmImprimirEtiqueta(DeskContext& desk, const labels::LabelValues& values,
                                         QWidget* parent)
    : QDialog(parent),
      desk_(desk),
      values_(values),
      ui_(std::make_unique<Ui::frmImprimirEtiqueta>()) {
    ui_->setupUi(this);
    for (QLineEdit* field : {ui_->txtDe, ui_->txtAte}) {
        new FieldController(field, KeyFilter::Decimal, desk.environment);
    }
    setIcon(*ui_->cmdOk, "print");
    setIcon(*ui_->cmdCancelar, "give_up");
    connect(ui_->cmdOk, &QPushButton::clicked, this, &frmImprimirEtiqueta::cmdOk_Click);
    connect(ui_->cmdCancelar, &QPushButton::clicked, this, &QDialog::reject);
}

frmImprimirEtiqueta::~frmImprimirEtiqueta() = default;

void frmImprimirEtiqueta::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (!event->spontaneous()) {
        activate();
    }
}

void frmImprimirEtiqueta::activate() {
    const labels::LabelForm form = labels::labelFormOf(values_.TipoFormulario);
    const ListItem item{std::string(labels::labelFormName(form)), static_cast<std::int32_t>(form)};
    fillList(*ui_->cboTp_Form, std::span(&item, 1));
    ui_->txtDe->setFocus();
}

void frmImprimirEtiqueta::cmdOk_Click() {
    const auto run =
        labels::fetchRange(desk_.environment, desk_.session, values_,
                           {ui_->txtDe->text().toStdString(), ui_->txtAte->text().toStdString()});
    if (!run) {
        return;
    }
    ProgressWindow progress(*this);
    if (labels::printLabels(desk_.environment, labels::labelFormOf(values_.TipoFormulario), *run,
                            progress.notices())) {
        accept();
    }
}

void frmImprimirEtiqueta::keyPressEvent(QKeyEvent* event) {
    if (!enterPressesButton(*this, *event)) {
        QDialog::keyPressEvent(event);
    }
}

}  // namespace tarn
