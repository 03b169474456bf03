// Finds bills and receipts of the company and prints the ticked ones.
#pragma once

#include <memory>

#include "bills/company_data.h"
#include "customers/procura_cliente.h"
#include "widgets/desk_dialog.h"

namespace Ui {
class FrmPesqDupli;
}

namespace tarn {

class GridModel;

class FrmPesqDupli : public DeskDialog {
    Q_OBJECT

public:
    FrmPesqDupli(DeskContext& desk, QWidget* parent);
    ~FrmPesqDupli() override;

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
    // On every activation: both lists are filled anew, the pictures read again.
    void activate();
    void Carrega_CboTpDocto();
    void Carrega_CboFilial();
    void showPictures();

    void cmdPesqCli_Click();
    void cmdPesquisar_Click();
    void cmdImprimir_Click();

    std::unique_ptr<Ui::FrmPesqDupli> ui_;
    GridModel* documents_;
    BillPictures pictures_;
};

}  // namespace tarn
