// Takes the data of one cheque, refuses a number that was issued before, prints the
// cheque and records it on the server.
#pragma once

#include <QDialog>
#include <QTimer>
#include <memory>
#include <vector>

#include "cheques/issue_cheque.h"
#include "widgets/desk_context.h"

namespace Ui {
class frmCheque;
}

namespace tarn {

class frmCheque : public QDialog {
    Q_OBJECT

public:
    frmCheque(DeskContext& desk, QWidget* parent);
    ~frmCheque() override;

    // On opening: reads the list of accounts and proposes the session's date.
    void carrega();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void preparaCampos();
    void preparaBotoes();
    void Carrega_CboBancoAgConta();

    CamposCheque campos() const;
    QWidget& campo(CampoDoCheque qual) const;
    // Whether there is a refusal; the user is told.
    bool recusado(const std::optional<RecusaDoCheque>& recusa);
    void esvazia();

    void Espera_Timer();
    void confereNumero();
    void confereAntesDoClique();
    void cmdImprimir_Click();
    void cmdCancelar_Click();

    DeskContext& desk_;
    std::unique_ptr<Ui::frmCheque> ui_;
    std::vector<ContaBancaria> contas_;  // by position of the list
    QTimer espera_;                      // runs from leaving number or series to its check
};

}  // namespace tarn
