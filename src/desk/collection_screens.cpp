#include "desk/collection_screens.h"

#include "bills/frm_pesq_dupli.h"
#include "customers/frm_pesq_cliente.h"
#include "slips/frm_pesq_boleto.h"

namespace tarn {

CollectionScreens::CollectionScreens(DeskContext& desk, QWidget& mainWindow)
    : desk_(desk), mainWindow_(mainWindow) {}

CollectionScreens::~CollectionScreens() = default;

FrmPesqDupli& CollectionScreens::bills() {
    return loaded(bills_);
}

frmPesqBoleto& CollectionScreens::slips() {
    return loaded(slips_);
}

template <typename Screen>
Screen& CollectionScreens::loaded(QPointer<Screen>& kept) {
    if (!kept) {
        auto* screen = new Screen(desk_, &mainWindow_);
        kept = screen;
        connect(screen, &Screen::customerWanted, this, [this, screen] { customerWanted(*screen); });
        connect(screen, &QDialog::finished, this, [&kept, screen] {
            kept.clear();
            screen->deleteLater();
        });
    }
    return *kept;
}

// The dialog belongs to the screen only while it stands in front of it, so that it
// outlives the screen.
void CollectionScreens::customerWanted(QDialog& screen) {
    if (!customers_) {
        customers_ = std::make_unique<FrmPesqCliente>(desk_, &mainWindow_);
        connect(customers_.get(), &FrmPesqCliente::chosen, this, &CollectionScreens::takeCustomer);
    }
    customers_->setParent(&screen, customers_->windowFlags());
    customers_->exec();
    customers_->setParent(&mainWindow_, customers_->windowFlags());
}

void CollectionScreens::takeCustomer(const Customer& customer) {
    bills().takeCustomer(customer);
    slips().takeCustomer(customer);
}

}  // namespace tarn
