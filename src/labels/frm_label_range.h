// What deletion and printing of labels share as dialogs: a range of sequence numbers of the
// queue, OK and "Cancelar".
#pragma once

#include "labels/queue.h"
#include "widgets/desk_dialog.h"

class QLineEdit;
class QPushButton;

namespace tarn {

class FrmLabelRange : public DeskDialog {
    Q_OBJECT

protected:
    FrmLabelRange(DeskContext& desk, const labels::LabelValues& values, QWidget* parent);

    // Once the controls are there; `okPicture` is the one of cmdOk.
    void prepareControls(QLineEdit* txtDe, QLineEdit* txtAte, QPushButton* cmdOk,
                         const char* okPicture, QPushButton* cmdCancelar);

    virtual void cmdOk_Click() = 0;

    const labels::LabelValues& values() const { return values_; }
    labels::Range range() const;

private:
    const labels::LabelValues& values_;
    QLineEdit* from_ = nullptr;
    QLineEdit* to_ = nullptr;
};

}  // namespace tarn
