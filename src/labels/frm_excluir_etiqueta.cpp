#include "labels/frm_excluir_etiqueta.h"

#include "common/boxes.h"
#include "labels/queue.h"
#include "ui_frm_excluir_etiqueta.h"
#include "widgets/form_helpers.h"

namespace tarn {

frmExcluirEtiqueta::frmExcluirEtiqueta(DeskContext& desk, const labels::LabelValues& values,
                                       QWidget* parent)
    : FrmLabelRange(desk, values, parent), ui_(std::make_unique<Ui::frmExcluirEtiqueta>()) {
    ui_->setupUi(this);
    prepareControls(ui_->txtDe, ui_->txtAte, ui_->cmdOk, "cancel_order", ui_->cmdCancelar);
}

frmExcluirEtiqueta::~frmExcluirEtiqueta() = default;

void frmExcluirEtiqueta::opened() {
    const ListItem item{values().MotivoImpressao, 0};
    fillList(*ui_->cboMotivo, std::span(&item, 1));
}

void frmExcluirEtiqueta::cmdOk_Click() {
    if (const auto refusal = labels::rangeRefusal(range())) {
        inform(desk_.environment, refusal->text);
        return focusField(refusal->field, {{labels::RangeField::From, ui_->txtDe},
                                           {labels::RangeField::To, ui_->txtAte}});
    }
    if (labels::deleteLabels(desk_.environment, desk_.session, values().MotivoImpressao, range())) {
        accept();
    }
}

}  // namespace tarn
