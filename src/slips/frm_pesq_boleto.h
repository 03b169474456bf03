// Finds the company's open documents that may go on a bank slip and prints the slips of
// the ticked ones.
#pragma once

#include <QDialog>
#include <memory>

#include "customers/procura_cliente.h"
#include "widgets/desk_context.h"

namespace Ui {
class frmPesqBoleto;
}

namespace tarn {

class GradeModel;
struct FiltroDeBoletos;
struct RecusaDeBoletos;

class frmPesqBoleto : public QDialog {
    Q_OBJECT

public:
    frmPesqBoleto(DeskContext& desk, QWidget* parent);
    ~frmPesqBoleto() override;

    // The customer to search for, also before the screen is shown.
    void recebeCliente(const Cliente& cliente);

signals:
    // To be answered by the customer dialog, which has closed when this returns.
    void procuraCliente();
    // It has come before the user.
    void apareceu();

protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void preparaCampos();
    void preparaBotoes();
    // On every activation: both lists are filled anew.
    void ativa();
    // Tells why, and brings the focus to the field.
    void recusa(const RecusaDeBoletos& motivo);
    void mostra(const FiltroDeBoletos& filtro);

    void cmdPesqCli_Click();
    void cmdPesquisar_Click();
    void cmdImprimir_Click();
    void chkInc_Carteira_Click(bool marcado);

    DeskContext& desk_;
    std::unique_ptr<Ui::frmPesqBoleto> ui_;
    GradeModel* documentos_;
};

}  // namespace tarn
