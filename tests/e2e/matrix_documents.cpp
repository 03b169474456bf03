// Bills, slips and cheques.
#include <QCheckBox>
#include <QComboBox>

#include "tests/e2e/matrix_desk.h"
#include "widgets/free_text_field.h"

namespace tarn::test {
namespace {

const Box noCustomers = requestFailure(
    "Tarn0024 - Erro na pesquisa de cliente - Não foi possível obter os dados da Internet. "
    "Verifique a conexão com a Internet.");
const Box noCustomerFound = information("Pesquisa nao encontrou nenhum registro.     ", "Aviso");
const Box noDocumentFound = exclamation("Não foi encontrado nenhum documento para esta pesquisa. ");
const Box noneTicked = information("Selecione um item na Lista!     ");
const Box issued = information("Cheque emitido com sucesso!     ");

}  // namespace

void MatrixDesk::openBills(QWidget&) {
    openAndLeave("FrmPesqDupli", "cmdVoltar", [this] { choose(menu, "mnuDuplicata"); });
}

void MatrixDesk::inBills(const Work& work) {
    modals.then("FrmPesqDupli", [work](QWidget& screen) {
        pickIn(screen, "cboTpDocto", 1);
        type(screen, "txtDtVncDe", "01092012");
        type(screen, "txtDtVncAte", "15092012");
        click(screen, "cmdPesquisar");
        work(screen);
        click(screen, "cmdVoltar");
    });
    choose(menu, "mnuDuplicata");
}

void MatrixDesk::searchBills(QWidget& screen) {
    click(screen, "cmdPesquisar");
}

void MatrixDesk::inCustomers(const Work& work) {
    inBills([this, work](QWidget& screen) {
        modals.then("FrmPesqCliente", [work](QWidget& dialog) {
            type(dialog, "txtNmCli", "panif");
            click(dialog, "cmdPesquisar");
            work(dialog);
            click(dialog, "cmdVoltar");
        });
        click(screen, "cmdPesqCli");
    });
}

void MatrixDesk::searchCustomers(QWidget& dialog) {
    click(dialog, "cmdPesquisar");
}

void MatrixDesk::openSlips(QWidget&) {
    openAndLeave("frmPesqBoleto", "cmdVoltar", [this] { choose(menu, "mnuBoleto"); });
}

// The documents that wait to be entered in the portfolio of wallet 57.
void MatrixDesk::inSlips(const Work& work) {
    modals.then("frmPesqBoleto", [work](QWidget& screen) {
        type(screen, "txtDtEmsDe", "01012012");
        type(screen, "txtDtVncAte", "31122012");
        pickIn(screen, "cboCartCob", 1);
        auto& entering = named<QCheckBox>(screen, "chkInc_Carteira");
        QTest::mouseClick(&entering, Qt::LeftButton, {}, QPoint(8, entering.height() / 2));
        click(screen, "cmdPesquisar");
        work(screen);
        click(screen, "cmdVoltar");
    });
    choose(menu, "mnuBoleto");
}

void MatrixDesk::searchSlips(QWidget& screen) {
    click(screen, "cmdPesquisar");
}

// One of that table, alone; each time the next.
void MatrixDesk::tick(QWidget& screen, const char* table) {
    QTableView& documents = gridOf(screen);
    const std::vector<bool> ticks = grid::ticks(documents);
    int found = 0;
    for (int row = 1; row <= grid::rows(documents); ++row) {
        const bool wanted = grid::cell(documents, row, 16) == table && found++ == slips_;
        if (ticks.at(static_cast<std::size_t>(row - 1)) != wanted) {
            grid::click(documents, row, 1);
        }
    }
    ++slips_;
    type(screen, "txtNr_Bol_Banc", "1234");
}

void MatrixDesk::printSlip(QWidget& screen) {
    click(screen, "cmdImprimir");
}

void MatrixDesk::openCheques(QWidget&) {
    openAndLeave("frmCheque", "cmdCancelar",
                 [this] { choose(menu, "mnuCheque", "mnuChequeImpressao"); });
}

// The number is checked behind the focus that leaves it.
void MatrixDesk::fillCheque(QWidget& screen) {
    const auto leave = [&screen](const char* next) {
        named<QWidget>(screen, next).setFocus();
        for (int turn = 0; turn < 4; ++turn) {
            QCoreApplication::processEvents();
        }
    };
    number_ = std::to_string(++cheques_);
    type(screen, "txtNumeroCheque", number_.c_str());
    leave("txtSerie");
    type(screen, "txtSerie", "ab1");
    leave("txtValor");
    type(screen, "txtValor", "1234,22");
    type(screen, "txtFavorecido", "Maria da Silva");
    leave("txtObservacao");
}

void MatrixDesk::inCheques(const Work& work) {
    modals.then("frmCheque", [work](QWidget& screen) {
        auto& accounts = named<QComboBox>(screen, "cboBancoAgConta");
        pickIn(screen, "cboBancoAgConta",
               accounts.findText(
                   QStringLiteral("BANCO DO VALE DO IPÊ - 1123 - 45678-9 - FOLHA & ENCARGOS")));
        work(screen);
        if (screen.isVisible()) {
            click(screen, "cmdCancelar");
        }
    });
    choose(menu, "mnuCheque", "mnuChequeImpressao");
}

void MatrixDesk::printCheque(QWidget& screen) {
    click(screen, "cmdImprimir");
}

std::vector<MatrixRow> documentRows() {
    using Desk = MatrixDesk;
    const std::vector<std::string> cheque{"txtNumeroCheque", "txtValor", "txtFavorecido",
                                          "txtObservacao"};
    const std::vector<std::string> list{"sprDados", "count"};
    const std::vector<std::string> slips{"sprDados", "count", "txtNr_Bol_Banc"};
    const Told goesOn{.goesOn = true};
    const Told recorded{.boxes = {issued}, .goesOn = true};
    const auto slipWrite = [&](const char* command, void (Desk::*tick)(QWidget&)) {
        return MatrixRow{.command = command,
                         .place = &Desk::inSlips,
                         .act = &Desk::printSlip,
                         .lost = goesOn,
                         .refused = goesOn,
                         .undeclared = goesOn,
                         .whole = goesOn,
                         .changes = slips,
                         .prepare = tick};
    };
    return {
        {.command = "sel_filiais",
         .place = &Desk::atDesk,
         .act = &Desk::openBills,
         .lost = {{noInternet9Wide}}},
        {.command = "sel_duplicata",
         .place = &Desk::inBills,
         .act = &Desk::searchBills,
         .lost = {{noInternet9}},
         .refused = {.shows = true},
         .changes = list,
         .prepare = &Desk::searchBills},
        {.command = "Sel_Cliente",
         .place = &Desk::inCustomers,
         .act = &Desk::searchCustomers,
         .lost = {{noCustomers}},
         .refused = {.boxes = {noCustomerFound}, .shows = true},
         .changes = list,
         .prepare = &Desk::searchCustomers},
        {.command = "sel_carteira",
         .place = &Desk::atDesk,
         .act = &Desk::openSlips,
         .lost = {{noInternet9Wide}}},
        {.command = "sel_boleto",
         .place = &Desk::inSlips,
         .act = &Desk::searchSlips,
         .lost = {{noInternet9}},
         .refused = {.boxes = {noDocumentFound}, .shows = true},
         .changes = list,
         .prepare = &Desk::searchSlips},
        {.command = "sel_carteira_cob",
         .place = &Desk::inSlips,
         .act = &Desk::printSlip,
         .lost = {{noInternet9}},
         .refused = {.boxes = {noneTicked}, .paper = true, .shows = true},
         .undeclared = goesOn,
         .whole = goesOn,
         .changes = slips,
         .prepare = &Desk::tickCollection},
        slipWrite("altera_docto_cob", &Desk::tickCollection),
        slipWrite("insere_car_cob", &Desk::tickCollection),
        slipWrite("altera_docto_rec", &Desk::tickReceivable),
        slipWrite("insere_car_rec", &Desk::tickReceivable),
        {.command = "sel_banco_agencia_conta",
         .place = &Desk::atDesk,
         .act = &Desk::openCheques,
         .lost = {{noInternet9Wide}}},
        {.command = "sel_dados_empresa",
         .place = &Desk::inCheques,
         .act = &Desk::printCheque,
         .lost = {{noInternet9}},
         .refused = {.boxes = {endReport()}, .ends = true},
         .undeclared = recorded,
         .whole = recorded,
         .changes = cheque,
         .prepare = &Desk::fillCheque},
        {.command = "seleciona_um_controle_cheque_emitido",
         .place = &Desk::inCheques,
         .act = &Desk::printCheque,
         .lost = {.boxes = {noInternet9Wide, issued}, .goesOn = true},
         .refused = recorded,
         .undeclared = recorded,
         .whole = recorded,
         .changes = cheque,
         .prepare = &Desk::fillCheque},
        {.command = "adiciona_controle_cheque_emitido",
         .place = &Desk::inCheques,
         .act = &Desk::printCheque,
         .lost = {.boxes = {noInternet9}, .paper = true},
         .refused = {.boxes = {refusal}, .paper = true},
         .undeclared = {.boxes = {endReport(": o cheque nº %1 foi impresso e talvez não esteja "
                                            "gravado no servidor; confira-o pelo número e série "
                                            "antes de imprimir outro")},
                        .ends = true,
                        .paper = true},
         .whole = {.boxes = {issued}, .paper = true, .shows = true},
         .changes = cheque,
         .writes = true,
         .prepare = &Desk::fillCheque},
    };
}

}  // namespace tarn::test
