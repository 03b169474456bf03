// What deletion and printing of labels share as dialogs: a range of sequence numbers of the
// queue, OK and "Cancelar".
#pragma once

#include <QDialog>

#include "labels/queue.h"
#include "widgets/desk_context.h"

class QLineEdit;
class QPushButton;

namespace tarn {

class FrmLabelRange : public QDialog {
    Q_OBJECT

protected:
    FrmLabelRange(DeskContext& desk, const labels::LabelValues& values, QWidget* parent);

    // Once the controls are there; `okPicture` is the one of cmdOk.
    void prepareControls(QLineEdit* txtDe, QLineEdit* txtAte, QPushButton* cmdOk,
                         const char* okPicture, QPushButton* cmdCancelar);

    // Each time the screen becomes the active one.
    virtual void activate() = 0;
    virtual void cmdOk_Click() = 0;

    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

    DeskContext& desk() const { return desk_; }
    const labels::LabelValues& values() const { return values_; }
    labels::Range range() const;

private:
    DeskContext& desk_;
    const labels::LabelValues& values_;
    QLineEdit* from_ = nullptr;
    QLineEdit* to_ = nullptr;
};

}  // namespace tarn
