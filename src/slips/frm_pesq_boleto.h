// Finds the company's open documents that may go on a bank slip and prints the slips of
// the ticked ones.
#pragma once

#include <memory>

#include "customers/procura_cliente.h"
#include "slips/slip_search.h"
#include "widgets/desk_dialog.h"

namespace Ui {
class frmPesqBoleto;
}

namespace tarn {

class GridModel;

class frmPesqBoleto : public DeskDialog {
    Q_OBJECT

public:
    frmPesqBoleto(DeskContext& desk, QWidget* parent);
    ~frmPesqBoleto() override;

    // The customer to search for, also before the screen is shown.
    void takeCustomer(const Customer& customer);

signals:
    // To be answered by the customer dialog, which has closed when this returns.
    void customerWanted();

protected:
    void opened() override;

private:
    void prepareFields();
    void prepareButtons();
    // On every activation: both lists are filled anew.
    void activate();
    void Carrega_CboFilial();
    void Carrega_Cart_Cobranca();
    // Tells why, and brings the focus to the field.
    void refuse(const SlipRefusal& reason);
    void show(const SlipFilter& filter);

    void cmdPesqCli_Click();
    void cmdPesquisar_Click();
    void cmdImprimir_Click();
    void chkInc_Carteira_Click(bool ticked);

    std::unique_ptr<Ui::frmPesqBoleto> ui_;
    GridModel* documents_;
};

}  // namespace tarn
