// Selects customers by where they live and by what they bought, and prints address
// labels of the ticked ones, without passing through the queue. No menu leads here.
#pragma once

#include <memory>

#include "widgets/desk_dialog.h"

class QComboBox;

namespace Ui {
class FrmImprEtiq;
}

namespace tarn {

class GridModel;

class FrmImprEtiq : public DeskDialog {
    Q_OBJECT

public:
    FrmImprEtiq(DeskContext& desk, QWidget* parent);
    ~FrmImprEtiq() override;

    // Before it shows: fills the lists.
    void load();

private:
    void prepareFields();
    void prepareCustomerGrid();
    void prepareButtons();
    void CarregaCboPais();
    void CarregaCboFilial();

    void cboPais_Click();
    void cboEstado_Click();
    void cmdPesquisar_Click();
    void cmdImprimir_Click();

    std::unique_ptr<Ui::FrmImprEtiq> ui_;
    GridModel* customers_;
};

}  // namespace tarn
