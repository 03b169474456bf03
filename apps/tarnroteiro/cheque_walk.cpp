#include "apps/tarnroteiro/cheque_walk.h"

#include <QLineEdit>

#include "apps/tarnroteiro/gestures.h"

namespace tarn {
namespace {

constexpr int firstAccount = 1;  // item of the list, counted from 0
constexpr const char* number = "1001";

}  // namespace

void walkCheque(Walk& walk) {
    walk.when("MDIMenu", "",
              [](QWidget& window) {
                  openMenu(window, "mnuCheque");
                  choose(window, "mnuCheque", "mnuChequeImpressao");
              })
        .when("frmCheque", "",
              [](QWidget& screen) { chooseInList(screen, "cboBancoAgConta", firstAccount); })
        .when("frmCheque", "", [](QWidget& screen) { typeIn(screen, "txtNumeroCheque", number); })
        .when("frmCheque", "", [](QWidget& screen) { typeIn(screen, "txtSerie", "A1"); })
        .when("frmCheque", "", [](QWidget& screen) { typeIn(screen, "txtValor", "1234,56"); })
        .when("frmCheque", "",
              [&](QWidget& screen) {
                  typeIn(screen, "txtFavorecido", "Papelaria Três Pontes Ltda");
                  auto& usage = child<QWidget>(screen, "txtObservacao");
                  usage.setFocus();
                  key(usage, "Material de escritório");
                  walk.photograph(screen, "cheque-preenchido");
                  click(screen, "cmdImprimir");
              })
        .when("MessageBox", "cheque-emitido", accept)
        .when("frmCheque", "",
              [&](QWidget& screen) {
                  walk.printed("cheque");
                  typeIn(screen, "txtNumeroCheque", number);
                  child<QLineEdit>(screen, "txtValor").setFocus();
              })
        .when("MessageBox", "cheque-repetido", accept)
        .when("frmCheque", "", [](QWidget& screen) { click(screen, "cmdCancelar"); });
}

}  // namespace tarn
