// Prints a range of the label queue on the form chosen there.
#pragma once

#include <memory>

#include "labels/frm_label_range.h"

namespace Ui {
class frmImprimirEtiqueta;
}

namespace tarn {

class frmImprimirEtiqueta : public FrmLabelRange {
    Q_OBJECT

public:
    frmImprimirEtiqueta(DeskContext& desk, const labels::LabelValues& values, QWidget* parent);
    ~frmImprimirEtiqueta() override;

private:
    void opened() override;
    void cmdOk_Click() override;

    std::unique_ptr<Ui::frmImprimirEtiqueta> ui_;
};

}  // namespace tarn
