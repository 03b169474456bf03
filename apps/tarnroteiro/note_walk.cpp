#include "apps/tarnroteiro/note_walk.h"

#include <QFile>
#include <QMenu>

#include "apps/tarnroteiro/gestures.h"
#include "apps/tarnroteiro/paper_list.h"

namespace tarn {
namespace {

// The number of the note, read off its paper: the first line's columns 125 to 130.
std::string numberOnPaper(const std::string& folder) {
    QFile note(jobsOf(QString::fromStdString(folder), "nota").value(1));  // 0 sets the printer up
    if (!note.open(QIODevice::ReadOnly)) {
        qFatal("a nota não saiu na impressora");
    }
    return note.readAll().mid(124, 6).toStdString();
}

void search(QWidget& screen, const std::string& number) {
    chooseInList(screen, "cboSerie", 0);
    typeIn(screen, "txtNF", number);
    click(screen, "cmdPesquisar");
}

// Rows of the practice data, counted from 0.
constexpr int first = 0;
constexpr int withObservation = 5;
constexpr int noStock = 6;
constexpr int refused = 7;
constexpr int customer = 1;  // column

}  // namespace

void walkLogon(Walk& walk, const WalkLogon& input) {
    walk.when("FrmLogon", "logon", [&](QWidget& window) {
        typeIn(window, "txtEmpresa", input.company);
        typeIn(window, "txtUsuario", input.user);
        typeIn(window, "txtSenha", input.password);
        walk.photograph(window, "logon-preenchido");
        click(window, "btnLogin");
    });
}

void walkIssuing(Walk& walk) {
    walk.when("MDIMenu", "mesa",
              [&](QWidget& window) {
                  openMenu(window, "mnuNF");
                  walk.photograph(child<QMenu>(window, "mnuNF"), "menu-nota-fiscal");
                  choose(window, "mnuNF", "mOFT");
              })
        .when("FrmOFT", "ordens",
              [](QWidget& screen) {
                  clickInGrid(screen, first, customer);
                  click(screen, "cmdDetOFT");
              })
        .when("frmManutDetOFT", "manutencao",
              [&](QWidget& dialog) {
                  typeIn(dialog, "txtQtde", "12");
                  typeIn(dialog, "txtPesoBruto", "350,5");
                  walk.photograph(dialog, "manutencao-preenchida");
                  click(dialog, "cmdOk");
              })
        .when("FrmOFT", "",
              [&](QWidget& screen) {
                  clickInGrid(screen, first, customer);
                  click(screen, "cmdImprimirOF");
                  walk.printed("ordem");
              })
        .when("FrmOFT", "",
              [](QWidget& screen) {
                  clickInGrid(screen, refused, customer);
                  click(screen, "cmdSelecionar");
              })
        .when("MessageBox", "recusa-do-servidor", accept)
        .when("FrmOFT", "",
              [](QWidget& screen) {
                  clickInGrid(screen, noStock, customer);
                  click(screen, "cmdSelecionar");
              })
        .when("frmMensagemAlerta", "sem-estoque",
              [](QWidget& dialog) { click(dialog, "cmdVoltar"); })
        .when("FrmOFT", "",
              [](QWidget& screen) {
                  clickInGrid(screen, withObservation, customer);
                  click(screen, "cmdSelecionar");
              })
        .when("frmMensagemAlerta", "observacao", [](QWidget& dialog) { click(dialog, "cmdOk"); })
        .when("FrmOFT", "nota-emitida",
              [&](QWidget& screen) {
                  walk.printed("nota");
                  click(screen, "CmdFechar");
              })
        .when("MDIMenu", "", [](QWidget& window) { clickInBar(window, "mnuAjuda"); })
        .when("frmAjuda", "ajuda", [](QWidget& dialog) { click(dialog, "cmdVoltar"); });
}

void walkReprint(Walk& walk, const WalkLogon& input) {
    walk.when("MDIMenu", "",
              [](QWidget& window) {
                  openMenu(window, "mnuNF");
                  choose(window, "mnuNF", "mRINF");
              })
        .when("FrmReImprimeNF", "reimpressao",
              [&](QWidget& screen) {
                  search(screen, numberOnPaper(input.folder));
                  walk.photograph(screen, "reimpressao-preenchida");
                  click(screen, "cmdSelecionar");
                  walk.printed("reimpressao");
              })
        .when("FrmReImprimeNF", "", [](QWidget& screen) { click(screen, "CmdFechar"); });
}

void walkCancellation(Walk& walk, const WalkLogon& input) {
    walk.when("MDIMenu", "",
              [](QWidget& window) {
                  openMenu(window, "mnuNF");
                  choose(window, "mnuNF", "mCNF");
              })
        .when("FrmReImprimeNF", "cancelamento",
              [&](QWidget& screen) {
                  search(screen, numberOnPaper(input.folder));
                  tickOption(screen, "OptionReimp_1");
                  chooseInList(screen, "CboMot_Can", 1);
                  walk.photograph(screen, "cancelamento-preenchido");
                  click(screen, "cmdSelecionar");
              })
        .when("MessageBox", "nota-cancelada", accept)
        .when("FrmReImprimeNF", "", [](QWidget& screen) { click(screen, "cmdPesquisar"); })
        .when("MessageBox", "nota-nao-encontrada", accept)
        .when("FrmReImprimeNF", "", [](QWidget& screen) { click(screen, "CmdFechar"); });
}

}  // namespace tarn
