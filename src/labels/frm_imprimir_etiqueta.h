// Prints a range of the label queue on the form chosen there.
#pragma once

#include <QDialog>
#include <memory>

#include "widgets/desk_context.h"

namespace Ui {
class frmImprimirEtiqueta;
}

namespace tarn {

namespace labels {
struct LabelValues;
}

class frmImprimirEtiqueta : public QDialog {
    Q_OBJECT

public:
    frmImprimirEtiqueta(DeskContext& desk, const labels::LabelValues& values, QWidget* parent);
    ~frmImprimirEtiqueta() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void activate();
    void cmdOk_Click();

    DeskContext& desk_;
    const labels::LabelValues& values_;
    std::unique_ptr<Ui::frmImprimirEtiqueta> ui_;
};

}  // namespace tarn
