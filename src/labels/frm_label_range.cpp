#include "labels/frm_label_range.h"

#include <QLineEdit>
#include <QPushButton>

#include "widgets/field_controller.h"
#include "widgets/form_helpers.h"
#include "widgets/look.h"

namespace tarn {

FrmLabelRange::FrmLabelRange(DeskContext& desk, const labels::LabelValues& values, QWidget* parent)
    : DeskDialog(desk, Esc::ClosesNothing, parent), values_(values) {}

void FrmLabelRange::prepareControls(QLineEdit* txtDe, QLineEdit* txtAte, QPushButton* cmdOk,
                                    const char* okPicture, QPushButton* cmdCancelar) {
    from_ = txtDe;
    to_ = txtAte;
    for (QLineEdit* field : {txtDe, txtAte}) {
        new FieldController(field, KeyFilter::Decimal, desk_.environment);
    }
    const Buttons buttons(this, setIcon);
    buttons.add(cmdOk, okPicture, &FrmLabelRange::cmdOk_Click, {ScreenKey::MainAct});
    buttons.add(cmdCancelar, "give_up", &QDialog::reject, {ScreenKey::Close});
    txtDe->setFocus();
}

labels::Range FrmLabelRange::range() const {
    return {from_->text().toStdString(), to_->text().toStdString()};
}

}  // namespace tarn
