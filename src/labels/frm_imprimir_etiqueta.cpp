#include "labels/frm_imprimir_etiqueta.h"

#include "labels/print_labels.h"
#include "labels/queue.h"
#include "ui_frm_imprimir_etiqueta.h"
#include "widgets/form_helpers.h"
#include "widgets/progress_window.h"

namespace tarn {

frmImprimirEtiqueta::frmImprimirEtiqueta(DeskContext& desk, const labels::LabelValues& values,
                                         QWidget* parent)
    : FrmLabelRange(desk, values, parent), ui_(std::make_unique<Ui::frmImprimirEtiqueta>()) {
    ui_->setupUi(this);
    prepareControls(ui_->txtDe, ui_->txtAte, ui_->cmdOk, "print", ui_->cmdCancelar);
}

frmImprimirEtiqueta::~frmImprimirEtiqueta() = default;

void frmImprimirEtiqueta::opened() {
    const labels::LabelForm form = labels::labelFormOf(values().TipoFormulario);
    const ListItem item{std::string(labels::labelFormName(form)), static_cast<std::int32_t>(form)};
    fillList(*ui_->cboTp_Form, std::span(&item, 1));
    ui_->txtDe->setFocus();
}

void frmImprimirEtiqueta::cmdOk_Click() {
    const auto run = labels::fetchRange(desk_.environment, desk_.session, values(), range());
    if (!run) {
        return;
    }
    ProgressWindow progress(*this);
    if (labels::printLabels(desk_.environment, labels::labelFormOf(values().TipoFormulario), *run,
                            progress.notices())) {
        accept();
    }
}

}  // namespace tarn
