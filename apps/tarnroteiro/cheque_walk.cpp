#include "apps/tarnroteiro/cheque_walk.h"

#include <QLineEdit>

#include "apps/tarnroteiro/gestures.h"

namespace tarn {
namespace {

constexpr int primeiraConta = 1;  // item of the list, counted from 0
constexpr const char* numero = "1001";

}  // namespace

void escreveCheque(Roteiro& roteiro) {
    roteiro
        .quando("MDIMenu", "",
                [](QWidget& janela) {
                    abreMenu(janela, "mnuCheque");
                    escolhe(janela, "mnuCheque", "mnuChequeImpressao");
                })
        .quando("frmCheque", "",
                [&](QWidget& tela) {
                    escolheNaLista(tela, "cboBancoAgConta", primeiraConta);
                    digita(tela, "txtNumeroCheque", numero);
                    digita(tela, "txtSerie", "A1");
                    digita(tela, "txtValor", "1234,56");
                    digita(tela, "txtFavorecido", "Papelaria Três Pontes Ltda");
                    auto& uso = filho<QWidget>(tela, "txtObservacao");
                    uso.setFocus();
                    tecla(uso, "Material de escritório");
                    roteiro.fotografa(tela, "cheque-preenchido");
                    clica(tela, "cmdImprimir");
                })
        .quando("MessageBox", "cheque-emitido", aceita)
        .quando("frmCheque", "",
                [](QWidget& tela) {
                    digita(tela, "txtNumeroCheque", numero);
                    filho<QLineEdit>(tela, "txtValor").setFocus();
                })
        .quando("MessageBox", "cheque-repetido", aceita)
        .quando("frmCheque", "", [](QWidget& tela) { clica(tela, "cmdCancelar"); });
}

}  // namespace tarn
