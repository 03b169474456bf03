#include "apps/tarnroteiro/collection_walk.h"

#include "apps/tarnroteiro/gestures.h"

namespace tarn {
namespace {

// Items of the lists, counted from 0.
constexpr int bill = 1;
constexpr int receipt = 2;
constexpr int isWallet57 = 1;

constexpr int box = 0;  // column of the check boxes
constexpr const char* sinceEver = "01012000";
constexpr const char* untilEver = "31122099";
// The last bill found until then is one of the kind that the final message speaks of.
constexpr const char* untilAugust = "31082012";

void tickFirst(QWidget& screen, int count) {
    for (int line = 0; line < count; ++line) {
        clickInGrid(screen, line, box);
    }
}

}  // namespace

void walkBills(Walk& walk) {
    walk.when("MDIMenu", "", [](QWidget& window) { clickInBar(window, "mnuDuplicata"); })
        .when("FrmPesqDupli", "", [](QWidget& screen) { click(screen, "cmdPesqCli"); })
        .when("FrmPesqCliente", "",
              [&](QWidget& dialog) {
                  typeIn(dialog, "txtNmCli", "pão de ara");
                  click(dialog, "cmdPesquisar");
                  clickInGrid(dialog, 0, 0);
                  walk.photograph(dialog, "clientes");
                  click(dialog, "cmdSelecionar");
              })
        .when("FrmPesqDupli", "",
              [&](QWidget& screen) {
                  chooseInList(screen, "cboTpDocto", bill);
                  typeIn(screen, "txtDtVncAte", untilAugust);
                  click(screen, "cmdPesquisar");
                  tickFirst(screen, 2);
                  walk.photograph(screen, "duplicatas");
                  click(screen, "cmdImprimir");
              })
        .when("MessageBox", "duplicatas-impressas", accept)
        .when("FrmPesqDupli", "",
              [&](QWidget& screen) {
                  walk.printed("duplicata");
                  click(screen, "cmdLimpar");
                  chooseInList(screen, "cboTpDocto", receipt);
                  click(screen, "cmdPesquisar");
                  tickFirst(screen, 1);
                  walk.photograph(screen, "recibos");
                  click(screen, "cmdImprimir");
              })
        .when("MessageBox", "", accept)
        .when("FrmPesqDupli", "", [&](QWidget& screen) {
            walk.printed("recibo");
            click(screen, "cmdVoltar");
        });
}

void walkSlips(Walk& walk) {
    walk.when("MDIMenu", "", [](QWidget& window) { clickInBar(window, "mnuBoleto"); })
        .when("frmPesqBoleto", "",
              [](QWidget& screen) {
                  click(screen, "cmdLimpar");
                  typeIn(screen, "txtDtEmsDe", sinceEver);
                  typeIn(screen, "txtDtVncAte", untilEver);
                  click(screen, "cmdPesquisar");
              })
        .when("MessageBox", "carteira-obrigatoria", accept)
        .when("frmPesqBoleto", "",
              [&](QWidget& screen) {
                  chooseInList(screen, "cboCartCob", isWallet57);
                  click(screen, "cmdPesquisar");
                  tickFirst(screen, 2);
                  typeIn(screen, "txtNr_Bol_Banc", "1234");
                  walk.photograph(screen, "boletos");
                  click(screen, "cmdImprimir");
                  walk.printed("boleto");
                  walk.photograph(screen, "boleto-impresso");
              })
        .when("frmPesqBoleto", "", [](QWidget& screen) { click(screen, "cmdVoltar"); });
}

}  // namespace tarn
