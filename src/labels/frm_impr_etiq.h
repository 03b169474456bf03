// Selects customers by where they live and by what they bought, and prints address
// labels of the ticked ones, without passing through the queue. No menu leads here.
#pragma once

#include <QDialog>
#include <memory>

#include "widgets/desk_context.h"

class QComboBox;

namespace Ui {
class FrmImprEtiq;
}

namespace tarn {

class GridModel;

class FrmImprEtiq : public QDialog {
    Q_OBJECT

public:
    FrmImprEtiq(DeskContext& desk, QWidget* parent);
    ~FrmImprEtiq() override;

    // Before it shows: fills the lists.
    void load();

protected:
    void keyPressEvent(QKeyEvent* event) override;

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

    DeskContext& desk_;
    std::unique_ptr<Ui::FrmImprEtiq> ui_;
    GridModel* customers_;
};

}  // namespace tarn
