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
struct Cliente;

class TelasDeCobranca : public QObject {
    Q_OBJECT

public:
    // `mesa` is the window in front of which the screens open.
    TelasDeCobranca(DeskContext& desk, QWidget& mesa);
    ~TelasDeCobranca() override;

    // A screen, loaded now if it isn't; unloaded when it closes.
    FrmPesqDupli& duplicatas();
    frmPesqBoleto& boletos();

private:
    template <typename Tela>
    Tela& carregada(QPointer<Tela>& guardada);
    void procuraCliente(QDialog& tela);
    void recebeCliente(const Cliente& cliente);

    DeskContext& desk_;
    QWidget& mesa_;
    std::unique_ptr<FrmPesqCliente> clientes_;
    QPointer<FrmPesqDupli> duplicatas_;
    QPointer<frmPesqBoleto> boletos_;
};

}  // namespace tarn
