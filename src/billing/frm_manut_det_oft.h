// Corrects four things on an order before its note is generated: the observation, the
// quantity of packages and the two weights. The rest is shown for reference.
#pragma once

#include <memory>

#include "billing/orders.h"
#include "widgets/desk_dialog.h"

class QLineEdit;

namespace Ui {
class frmManutDetOFT;
}

namespace tarn {

class frmManutDetOFT : public DeskDialog {
    Q_OBJECT

public:
    // Shows the order's cells as they are now; what becomes of the list is not followed.
    frmManutDetOFT(DeskContext& desk, const GridRow& order, QWidget* parent);
    ~frmManutDetOFT() override;

signals:
    // The write was sent: the list must be read again. Comes before the dialog closes.
    void saved();

private:
    void prepareFields();
    void prepareButtons();
    void load(const GridRow& order);

    void cmdOk_Click();

    std::unique_ptr<Ui::frmManutDetOFT> ui_;
};

}  // namespace tarn
