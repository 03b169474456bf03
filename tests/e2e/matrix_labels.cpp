// The queue of labels and their bulk selection.
#include <QComboBox>

#include "tests/e2e/matrix_desk.h"

namespace tarn::test {
namespace {

const Box deleted = information("Etiquetas excluídas com sucesso!     ");
const Box printedBox = information(" Etiquetas impressas com sucesso!   ");

}  // namespace

void MatrixDesk::openQueue(QWidget&) {
    openAndLeave("frmPesqEtiquetas", "cmdVoltar",
                 [this] { choose(menu, "mnuEtiquetas", "mnuImprClientes"); });
}

void MatrixDesk::inQueue(const Work& work) {
    modals.then("frmPesqEtiquetas", [this, work](QWidget& queue) {
        chooseReason(queue);
        pickIn(queue, "cboTp_Form", 1);
        work(queue);
        click(queue, "cmdVoltar");
    });
    choose(menu, "mnuEtiquetas", "mnuImprClientes");
}

void MatrixDesk::chooseReason(QWidget& queue) {
    pickIn(queue, "cboMotivo",
           named<QComboBox>(queue, "cboMotivo").findText(QStringLiteral("COBRANÇA")));
}

void MatrixDesk::printLabels(QWidget& queue) {
    modals.then("frmImprimirEtiqueta", [](QWidget& print) {
        type(print, "txtDe", "1");
        type(print, "txtAte", "2");
        click(print, "cmdOk");
        if (print.isVisible()) {
            EXPECT_EQ(text(print, "txtDe"), "1");
            EXPECT_EQ(text(print, "txtAte"), "2");
            click(print, "cmdCancelar");
        }
    });
    click(queue, "cmdImprimir");
}

void MatrixDesk::deleteLabel(QWidget& queue) {
    const std::string last = std::to_string(grid::rows(gridOf(queue)));
    modals.then("frmExcluirEtiqueta", [last](QWidget& deletion) {
        type(deletion, "txtDe", last.c_str());
        type(deletion, "txtAte", last.c_str());
        click(deletion, "cmdOk");
    });
    click(queue, "cmdExcluir");
}

void MatrixDesk::openSelection(QWidget&) {
    openAndLeave("FrmImprEtiq", "cmdVoltar", [this] { menu.openLabelSelection(); });
}

void MatrixDesk::inSelection(const Work& work) {
    modals.then("FrmImprEtiq", [this, work](QWidget& selection) {
        chooseCountry(selection);
        work(selection);
        click(selection, "cmdVoltar");
    });
    menu.openLabelSelection();
}

void MatrixDesk::chooseCountry(QWidget& selection) {
    pickIn(selection, "cboPais", 1);
}

void MatrixDesk::chooseState(QWidget& selection) {
    pickIn(selection, "cboEstado", 1);
}

void MatrixDesk::searchAddressees(QWidget& selection) {
    click(selection, "cmdPesquisar");
    if (!boxes.shown.empty() && boxes.shown.front().text.starts_with("comando=sel_dados_etq&")) {
        boxes.shown.front().text = "comando=sel_dados_etq&";  // and all that was asked
    }
}

std::vector<MatrixRow> labelRows() {
    using Desk = MatrixDesk;
    const Box asked = plain("comando=sel_dados_etq&");
    const std::vector<std::string> list{"sprDados", "count"};
    return {
        {.command = "sel_filiais_remetente",
         .place = &Desk::atDesk,
         .act = &Desk::openQueue,
         .lost = {{noInternet9}}},
        {.command = "sel_motivos",
         .place = &Desk::atDesk,
         .act = &Desk::openQueue,
         .lost = {{noInternet9Wide}}},
        {.command = "sel_etiquetas",
         .place = &Desk::inQueue,
         .act = &Desk::chooseReason,
         .lost = {{noInternet9}},
         .refused = {.shows = true},
         .changes = list,
         .prepare = &Desk::chooseReason},
        {.command = "sel_dados_remetente",
         .place = &Desk::inQueue,
         .act = &Desk::printLabels,
         .lost = {{noInternet9}},
         .refused = {{endReport(": o servidor não tem os dados da Filial Remetente")}},
         .undeclared = {.boxes = {printedBox}, .paper = true},
         .whole = {.boxes = {printedBox}, .paper = true}},
        {.command = "exclui_etiquetas",
         .place = &Desk::inQueue,
         .act = &Desk::deleteLabel,
         .lost = {{noInternet9, deleted}},
         .refused = {{deleted}},
         .undeclared = {{deleted}},
         .whole = {{deleted}},
         .changes = list,
         .writes = true,
         .rereads = true},
        {.command = "sel_filias",
         .place = &Desk::atDesk,
         .act = &Desk::openSelection,
         .lost = {{noInternet9Wide}}},
        {.command = "sel_pais",
         .place = &Desk::atDesk,
         .act = &Desk::openSelection,
         .lost = {{noInternet9Wide}}},
        {.command = "sel_estado",
         .place = &Desk::inSelection,
         .act = &Desk::chooseCountry,
         .lost = {.boxes = {noInternet9Wide}, .shows = true},
         .refused = {.shows = true},
         .changes = {"cboEstado", "cboCidade"},
         .prepare = &Desk::chooseCountry},
        {.command = "sel_cidade",
         .place = &Desk::inSelection,
         .act = &Desk::chooseState,
         .lost = {.boxes = {noInternet9Wide}, .shows = true},
         .refused = {.shows = true},
         .changes = {"cboCidade"},
         .prepare = &Desk::chooseState},
        {.command = "sel_dados_etq",
         .place = &Desk::inSelection,
         .act = &Desk::searchAddressees,
         .lost = {.boxes = {asked, noInternet9Wide}, .shows = true},
         .refused = {.boxes = {asked}, .shows = true},
         .undeclared = {{asked}},
         .whole = {{asked}},
         .changes = list,
         .prepare = &Desk::searchAddressees},
    };
}

}  // namespace tarn::test
