// Takes the data of one cheque, refuses a number that was issued before, prints the
// cheque and records it on the server.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "cheques/issue_cheque.h"
#include "platform/qt/input_gate.h"
#include "widgets/desk_dialog.h"

namespace Ui {
class frmCheque;
}

namespace tarn {

class frmCheque : public DeskDialog {
    Q_OBJECT

public:
    frmCheque(DeskContext& desk, QWidget* parent);
    ~frmCheque() override;

    // On opening: reads the list of accounts and proposes the session's date.
    void load();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void opened() override;

private:
    struct Leaving {
        Unasked unasked{InputGate::ofApplication()};
        ShutGate shut{InputGate::ofApplication()};
    };

    void prepareFields();
    void prepareButtons();
    void Carrega_CboBancoAgConta();

    ChequeFields fields() const;
    // Whether there is a refusal; the user is told.
    bool refused(const std::optional<ChequeRefusal>& refuse);
    void clearFields();

    void checkOnLeaving();
    void chooseFromOpenList(QEvent& enter);
    void cmdImprimir_Click();

    std::unique_ptr<Ui::frmCheque> ui_;
    std::vector<BankAccount> accounts_;  // by position of the list
    std::unique_ptr<Leaving> leaving_;   // from leaving number or series to its check
};

}  // namespace tarn
