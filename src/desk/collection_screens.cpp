#include "desk/collection_screens.h"

#include "bills/frm_pesq_dupli.h"
#include "customers/frm_pesq_cliente.h"
#include "slips/frm_pesq_boleto.h"

namespace tarn {

TelasDeCobranca::TelasDeCobranca(DeskContext& desk, QWidget& mesa) : desk_(desk), mesa_(mesa) {}

TelasDeCobranca::~TelasDeCobranca() = default;

FrmPesqDupli& TelasDeCobranca::duplicatas() {
    return carregada(duplicatas_);
}

frmPesqBoleto& TelasDeCobranca::boletos() {
    return carregada(boletos_);
}

template <typename Tela>
Tela& TelasDeCobranca::carregada(QPointer<Tela>& guardada) {
    if (!guardada) {
        auto* tela = new Tela(desk_, &mesa_);
        guardada = tela;
        connect(tela, &Tela::procuraCliente, this, [this, tela] { procuraCliente(*tela); });
        connect(tela, &QDialog::finished, this, [&guardada, tela] {
            guardada.clear();
            tela->deleteLater();
        });
    }
    return *guardada;
}

// The dialog belongs to the screen only while it stands in front of it, so that it
// outlives the screen.
void TelasDeCobranca::procuraCliente(QDialog& tela) {
    if (!clientes_) {
        clientes_ = std::make_unique<FrmPesqCliente>(desk_, &mesa_);
        connect(clientes_.get(), &FrmPesqCliente::escolheu, this, &TelasDeCobranca::recebeCliente);
    }
    clientes_->setParent(&tela, clientes_->windowFlags());
    clientes_->exec();
    clientes_->setParent(&mesa_, clientes_->windowFlags());
}

void TelasDeCobranca::recebeCliente(const Cliente& cliente) {
    duplicatas().recebeCliente(cliente);
    boletos().recebeCliente(cliente);
}

}  // namespace tarn
