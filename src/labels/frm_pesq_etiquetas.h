// The door to the labels: shows the queue of one reason of printing, takes the form of
// stationery and the sender, and hands over to printing or to deletion.
#pragma once

#include <memory>

#include "widgets/desk_dialog.h"

namespace Ui {
class frmPesqEtiquetas;
}

namespace tarn {

class GridModel;

namespace labels {
struct LabelValues;
}

class frmPesqEtiquetas : public DeskDialog {
    Q_OBJECT

public:
    frmPesqEtiquetas(DeskContext& desk, labels::LabelValues& values, QWidget* parent);
    ~frmPesqEtiquetas() override;

    // Before it shows: fills the lists, and the grid with the queue of no reason.
    void load();

private:
    void prepareQueueGrid();
    void prepareButtons();
    void CarregaCboFilialRemet();
    void Carrega_Cbo_Motivo();
    void readQueue();
    // Shows a screen in front; when it has closed this one is the active one again.
    void runModal(QDialog& screen);
    void activate();

    void cboTp_Form_Click();
    void CboFilialRemet_Click();
    void cmdImprimir_Click();
    void cmdExcluir_Click();

    labels::LabelValues& values_;
    std::unique_ptr<Ui::frmPesqEtiquetas> ui_;
    GridModel* queue_;
};

}  // namespace tarn
