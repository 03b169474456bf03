// The start of the desk, and the orders, notes and their cancellation.
#include <QRadioButton>

#include "tests/e2e/matrix_desk.h"

namespace tarn::test {
namespace {

const Box noVersion = requestFailure(
    "Não consegui verificar a versão do TarnEMISSAO porque não tive acesso à internet!!!");
const Box outdated{
    "          TARNEMISSAO DESATUALIZADO ! \r"
    "       Data da Versão TarnEmissao = 07/01/2009\r\r"
    "       Por favor, faça a atualização no site: \r\r"
    "                    " TARN_VENDOR_SITE
    " \r\r"
    "      OPÇÃO -> CENTRAL DE ATUALIZAÇÃO                   \r\r",
    BoxIcon::Information, "TarnEmissao"};
const Box noLogon = exclamation("Houve um problema para efetuar o Login.");
const Box unexpected = critical(
    "Aconteceu um erro inesperado no sistema. Por favor avise a RVL\nErro = Falta um dado na "
    "resposta do servidor",
    "Aviso");
const Box noRight = exclamation(
    "Houve um problema na verificação do Direito de Acesso do usuário na Transação EMI001. ");

const Box noObservation = notice(
    "Aconteceu um erro na busca da observação da(s) venda(s). Cancele esta tela e tente "
    "novamente.");
const Box maybeMade = notice(
    "Favor verificar se a Nota Fiscal foi gerada. Caso tenha sido gerada, utilize a tela de "
    "Reimpressão de Nota Fiscal. ");
const Box cancelQuestion{"Confirma o cancelamento da Ordem de Faturamento nº %1 ?     ",
                         BoxIcon::Question, "Aviso", BoxButtons::YesNo};
const Box maybeCancelled =
    notice("Favor verificar se a Ordem de Faturamento nº %1 foi cancelada. ");
const Box maybeSaved = notice("Favor verificar se os dados da Ordem de Faturamento foi gravado. ");
const Box noSheet =
    notice("Houve um problema na transferência dos dados da Ordem de Faturamento nº %1.");

}  // namespace

void MatrixDesk::start(QWidget&) {
    if (logonOpens_) {
        modals.then("FrmLogon", [](QWidget& logon) { key(logon, Qt::Key_Escape); });
    }
    menu.load();
}

void MatrixDesk::atLogon(const Work& work) {
    modals.then("FrmLogon", [work](QWidget& logon) {
        typeLogon(logon);
        work(logon);
        if (logon.isVisible()) {
            key(logon, Qt::Key_Escape);
        }
    });
    menu.load();
}

void MatrixDesk::logIn(QWidget& logon) {
    click(logon, "btnLogin");
}

void MatrixDesk::openOrderList(QWidget&) {
    open("mOFT");
    if (menu.findChild<FrmOFT*>() != nullptr) {
        close<FrmOFT>();
    }
}

void MatrixDesk::atOrders(const Work& work) {
    openOrders();
    work(menu);
}

void MatrixDesk::refreshOrders(QWidget&) {
    click(menu, "CmdAtualizar");
}

void MatrixDesk::cancelOrder(QWidget&) {
    number_ = takeOrder();
    press(number_, "CmdCanOft");
}

void MatrixDesk::makeNoteOfOrder(QWidget&) {
    number_ = takeOrder();
    generate(number_);
}

void MatrixDesk::correctOrder(QWidget&) {
    number_ = takeOrder();
    modals.then("frmManutDetOFT", [](QWidget& dialog) {
        type(dialog, "txtQtde", "4321");
        click(dialog, "cmdOk");
        if (dialog.isVisible()) {
            EXPECT_EQ(text(dialog, "txtQtde"), "4.321,000");
            click(dialog, "cmdCancelar");
        }
    });
    press(number_, "cmdDetOFT");
}

void MatrixDesk::printOrder(QWidget&) {
    number_ = takeOrder();
    press(number_, "cmdImprimirOF");
}

void MatrixDesk::openCancellation(QWidget&) {
    open("mCNF");
    close<FrmReImprimeNF>();
}

void MatrixDesk::atReprint(const Work& work) {
    number_ = makeNote();
    open("mRINF");
    search(number_);
    work(reprint());
}

void MatrixDesk::searchNote(QWidget&) {
    click(reprint(), "cmdPesquisar");
}

void MatrixDesk::reprintNote(QWidget&) {
    click(reprint(), "cmdSelecionar");
}

void MatrixDesk::atCancellation(const Work& work) {
    open("mCNF");
    work(reprint());
}

void MatrixDesk::findNoteToCancel(QWidget&) {
    number_ = makeNote();
    search(number_);
    QTest::mouseClick(&named<QWidget>(reprint(), "OptionReimp_1"), Qt::LeftButton, {}, {8, 8});
    pickIn(menu, "CboMot_Can", 1);
}

void MatrixDesk::cancelNote(QWidget&) {
    click(reprint(), "cmdSelecionar");
}

std::vector<MatrixRow> startRows() {
    using Desk = MatrixDesk;
    const std::vector<std::string> orders{"sprDados", "count"};
    const auto observationRow = [&orders](const char* command) {
        return MatrixRow{
            .command = command,
            .place = &Desk::atOrders,
            .act = &Desk::makeNoteOfOrder,
            .lost = {.boxes = {transportFailure("0004"), noObservation}, .goesOn = true},
            .refused = {{refusal}},
            .undeclared = {.boxes = {endReport()}, .ends = true},
            .whole = {.goesOn = true},
            .changes = orders,
            .anew = true};
    };
    return {
        {.command = "VERSAO_TARN_EMISSAO",
         .place = &Desk::beforeLogon,
         .act = &Desk::start,
         .lost = {.boxes = {noVersion}, .quits = true},
         .refused = {.boxes = {outdated}, .quits = true},
         .undeclared = {.boxes = {outdated}, .quits = true},
         .whole = {.quits = true},
         .anew = true},
        {.command = "LOGIN",
         .place = &Desk::atLogon,
         .act = &Desk::logIn,
         .lost = {{transportFailure("0001"), noLogon}},
         .refused = {{refusal}},
         .undeclared = {.boxes = {unexpected}, .ends = true},
         .whole = {},
         .anew = true},
        {.command = "verifica_direito_acesso",
         .place = &Desk::atDesk,
         .act = &Desk::openOrderList,
         .lost = {{transportFailure("0002"), noRight}},
         .refused = {{refusal}},
         .undeclared = {.boxes = {endReport()}, .ends = true},
         .whole = {}},
        {.command = "sel_ordem_fatu",
         .place = &Desk::atOrders,
         .act = &Desk::refreshOrders,
         .lost = {.boxes = {transportFailure("0006")}, .shows = true},
         .refused = {.shows = true},
         .undeclared = {},
         .whole = {},
         .changes = orders},
        {.command = "sp_can_oft",
         .place = &Desk::atOrders,
         .act = &Desk::cancelOrder,
         .lost = {{cancelQuestion, transportFailure("0003"), maybeCancelled}},
         .refused = {{cancelQuestion, refusal}},
         .undeclared = {.boxes = {cancelQuestion, endReport()}, .ends = true},
         .whole = {.boxes = {cancelQuestion,
                             information("Ordem de Faturamento cancelada.      ", "Aviso ")},
                   .shows = true},
         .changes = orders,
         .writes = true,
         .anew = true},
        observationRow("Seleciona_Obs_Vnd_X_Ord"),
        observationRow("Seleciona_Obs_Ord_X_Est"),
        {.command = "SP_GERA_NF",
         .place = &Desk::atOrders,
         .act = &Desk::makeNoteOfOrder,
         .lost = {{transportFailure("0004"), maybeMade}},
         .refused = {{refusal}},
         .undeclared = {.boxes = {endReportWithNote()}, .ends = true},
         .whole = {.paper = true},
         .changes = orders,
         .writes = true,
         .rereads = true,
         .anew = true},
        {.command = "MANUTENCAO_OFT",
         .place = &Desk::atOrders,
         .act = &Desk::correctOrder,
         .lost = {{transportFailure("0013"), maybeSaved}},
         .refused = {{refusal}},
         .undeclared = {.boxes = {endReport()}, .ends = true},
         .whole = {},
         .writes = true,
         .anew = true},
        {.command = "sel_impr_ordem_fatu",
         .place = &Desk::atOrders,
         .act = &Desk::printOrder,
         .lost = {{transportFailure("0012"), noSheet}},
         .refused = {{refusal}},
         .undeclared = {.boxes = {endReport()}, .ends = true},
         .whole = {.paper = true},
         .anew = true},
    };
}

std::vector<MatrixRow> noteRows() {
    using Desk = MatrixDesk;
    const std::string problem = "Houve um problema ";
    return {
        {.command = "SEL_SERIE_NF",
         .place = &Desk::atDesk,
         .act = &Desk::openCancellation,
         .lost = {{transportFailure("0010")}}},
        {.command = "SEL_MOT_CAN",
         .place = &Desk::atDesk,
         .act = &Desk::openCancellation,
         .lost = {{transportFailure("0011")}}},
        {.command = "SEL_NF",
         .place = &Desk::atReprint,
         .act = &Desk::searchNote,
         .lost = {{transportFailure("0007"), notice(problem + "na Pesquisa da Nota Fiscal !!!")}},
         .refused = {{notice("Nota Fiscal não encontrada ou Cancelada !!!    ")}}},
        {.command = "sel_gera_nf",
         .place = &Desk::atReprint,
         .act = &Desk::reprintNote,
         .lost = {{transportFailure("0008"),
                   notice(problem + "na transferência dos dados da Nota Fiscal !!!")}},
         .refused = {{refusal}},
         .undeclared = {{notice(problem + "na transferência dos dados da Nota Fiscal nº %1. ")}},
         .whole = {.paper = true}},
        {.command = "sp_can_nf",
         .place = &Desk::atCancellation,
         .act = &Desk::cancelNote,
         .lost = {{noInternet9, notice("Favor verificar se a Nota Fiscal foi cancelada. ")}},
         .refused = {{refusal}},
         .undeclared = {{notice(problem + "no Cancelamento da Nota Fiscal nº %1. ")}},
         .whole = {.boxes = {information("Nota fiscal cancelada com sucesso", "Aviso")},
                   .shows = true},
         .changes = {"CboMot_Can", "LBLNOTA", "LBLCliente", "LblTipoNf", "LblDtEm", "OptionReimp_1",
                     "txtNF", "cboSerie"},
         .writes = true,
         .anew = true,
         .prepare = &Desk::findNoteToCancel},
    };
}

}  // namespace tarn::test
