#include "apps/tarnroteiro/labels_walk.h"

#include "apps/tarnroteiro/gestures.h"

namespace tarn {
namespace {

// Items of the lists, counted from 0.
constexpr int firstReason = 1;
constexpr int withSender = 4;
constexpr int dotMatrix = 2;
constexpr int firstBranch = 1;

void typeRange(QWidget& screen, const char* from, const char* to) {
    typeIn(screen, "txtDe", from);
    typeIn(screen, "txtAte", to);
}

}  // namespace

void walkLabels(Walk& walk) {
    walk.when("MDIMenu", "",
              [](QWidget& window) {
                  openMenu(window, "mnuEtiquetas");
                  choose(window, "mnuEtiquetas", "mnuImprClientes");
              })
        .when("frmPesqEtiquetas", "",
              [&](QWidget& screen) {
                  chooseInList(screen, "cboMotivo", firstReason);
                  chooseInList(screen, "cboTp_Form", withSender);
                  chooseInList(screen, "CboFilialRemet", firstBranch);
                  walk.photograph(screen, "etiquetas");
                  click(screen, "cmdImprimir");
              })
        .when("frmImprimirEtiqueta", "",
              [&](QWidget& screen) {
                  typeRange(screen, "1", "3");
                  walk.photograph(screen, "etiquetas-imprimir");
                  click(screen, "cmdOk");
              })
        .when("MessageBox", "etiquetas-impressas", accept)
        .when("frmPesqEtiquetas", "",
              [&](QWidget& screen) {
                  walk.printed("etiquetas");
                  chooseInList(screen, "cboTp_Form", dotMatrix);
                  click(screen, "cmdImprimir");
              })
        .when("frmImprimirEtiqueta", "",
              [](QWidget& screen) {
                  typeRange(screen, "1", "5");
                  click(screen, "cmdOk");
              })
        .when("frmPesqEtiquetas", "",
              [&](QWidget& screen) {
                  walk.printed("etiquetas-matriciais");
                  click(screen, "cmdExcluir");
              })
        .when("frmExcluirEtiqueta", "",
              [&](QWidget& screen) {
                  typeRange(screen, "1", "3");
                  walk.photograph(screen, "etiquetas-excluir");
                  click(screen, "cmdOk");
              })
        .when("MessageBox", "etiquetas-excluidas", accept)
        .when("frmPesqEtiquetas", "", [](QWidget& screen) { click(screen, "cmdVoltar"); });
}

void walkLabelSelection(Walk& walk) {
    walk.when("FrmImprEtiq", "",
              [](QWidget& screen) {
                  typeIn(screen, "txtCepDe", "01000000");
                  typeIn(screen, "txtCepAte", "09999999");
                  click(screen, "cmdPesquisar");
              })
        .when("MessageBox", "selecao-consulta", accept)
        .when("FrmImprEtiq", "",
              [&](QWidget& screen) {
                  for (int line = 0; line < 3; ++line) {
                      clickInGrid(screen, line, 0);
                  }
                  walk.photograph(screen, "selecao-etiquetas");
                  click(screen, "cmdImprimir");
              })
        .when("MessageBox", "", accept)
        .when("FrmImprEtiq", "", [](QWidget& screen) { click(screen, "cmdVoltar"); });
}

}  // namespace tarn
