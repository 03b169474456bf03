// The working desk of billing: the orders that are ready for a note, and what can be
// done with the selected one. The list renews itself each minute.
#pragma once

#include <QWidget>
#include <memory>
#include <optional>

#include "billing/orders.h"
#include "widgets/desk_context.h"

namespace Ui {
class FrmOFT;
}

namespace tarn {

class GridModel;
class Tick;

class FrmOFT : public QWidget {
    Q_OBJECT

public:
    explicit FrmOFT(DeskContext& desk);
    ~FrmOFT() override;

    // On opening: the desk's menus are disabled (loaded), the list is read.
    void load();
    // Reads the list anew; selection and scroll position are lost.
    void loadSpread();

signals:
    void loaded();
    void closed();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void prepareButtons();
    // The active row, the first one when none is; with an empty grid tells the user.
    std::optional<GridRow> selectedOrder();
    bool observationsAccepted(const GridRow& order);

    void Timer_Tick();
    void cmdSelecionar_Click();
    void CmdCanOft_Click();
    void cmdImprimirOF_Click();
    void cmdDetOFT_Click();
    void CmdFechar_Click();

    DeskContext& desk_;
    std::unique_ptr<Ui::FrmOFT> ui_;
    GridModel* orders_;
    Tick* timer_;
};

}  // namespace tarn
