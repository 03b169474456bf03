// Takes a range of labels out of the queue of the reason shown there.
#pragma once

#include <memory>

#include "labels/frm_label_range.h"

namespace Ui {
class frmExcluirEtiqueta;
}

namespace tarn {

class frmExcluirEtiqueta : public FrmLabelRange {
    Q_OBJECT

public:
    frmExcluirEtiqueta(DeskContext& desk, const labels::LabelValues& values, QWidget* parent);
    ~frmExcluirEtiqueta() override;

private:
    void opened() override;
    void cmdOk_Click() override;

    std::unique_ptr<Ui::frmExcluirEtiqueta> ui_;
};

}  // namespace tarn
