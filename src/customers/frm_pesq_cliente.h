// Chooses one customer by part of the name, for the searches of bills and of slips.
// It is hidden when left: what was typed and found is there at the next opening.
#pragma once

#include <memory>

#include "customers/procura_cliente.h"
#include "widgets/desk_dialog.h"

namespace Ui {
class FrmPesqCliente;
}

namespace tarn {

class GridModel;

class FrmPesqCliente : public DeskDialog {
    Q_OBJECT

public:
    FrmPesqCliente(DeskContext& desk, QWidget* parent);
    ~FrmPesqCliente() override;

signals:
    // Comes before the dialog hides.
    void chosen(const tarn::Customer& customer);

protected:
    void enterPressed() override;

private:
    void prepareButtons();

    void cmdPesquisar_Click();
    void cmdSelecionar_Click();

    std::unique_ptr<Ui::FrmPesqCliente> ui_;
    GridModel* customers_;
};

}  // namespace tarn
