// The searches of bills and of slips and the customer dialog that both open. A customer
// chosen from either goes into both, so the owner of the screens makes the one that
// isn't open yet; a screen is unloaded when it closes and comes back empty.
#pragma once

#include <QObject>
#include <QPointer>
#include <memory>

#include "widgets/desk_context.h"

class QDialog;
class QWidget;

namespace tarn {

class FrmPesqCliente;
class FrmPesqDupli;
class frmPesqBoleto;
struct Customer;

class CollectionScreens : public QObject {
    Q_OBJECT

public:
    // `mainWindow` is the window in front of which the screens open.
    CollectionScreens(DeskContext& desk, QWidget& mainWindow);
    ~CollectionScreens() override;

    // A screen, loaded now if it isn't; unloaded when it closes.
    FrmPesqDupli& bills();
    frmPesqBoleto& slips();

private:
    template <typename Screen>
    Screen& loaded(QPointer<Screen>& kept);
    void customerWanted(QDialog& screen);
    void takeCustomer(const Customer& customer);

    DeskContext& desk_;
    QWidget& mainWindow_;
    std::unique_ptr<FrmPesqCliente> customers_;
    QPointer<FrmPesqDupli> bills_;
    QPointer<frmPesqBoleto> slips_;
};

}  // namespace tarn
