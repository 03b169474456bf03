// Takes a range of labels out of the queue of the reason shown there.
#pragma once

#include <QDialog>
#include <memory>

#include "widgets/desk_context.h"

namespace Ui {
class frmExcluirEtiqueta;
}

namespace tarn {

namespace labels {
struct LabelValues;
}

class frmExcluirEtiqueta : public QDialog {
    Q_OBJECT

public:
    frmExcluirEtiqueta(DeskContext& desk, const labels::LabelValues& values, QWidget* parent);
    ~frmExcluirEtiqueta() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void activate();
    void cmdOk_Click();

    DeskContext& desk_;
    const labels::LabelValues& values_;
    std::unique_ptr<Ui::frmExcluirEtiqueta> ui_;
};

}  // namespace tarn
