// What each routine says it has done: decision D123.
#include <gtest/gtest.h>

#include "billing/alert.h"
#include "billing/generate_note.h"
#include "billing/order_sheet.h"
#include "billing/orders.h"
#include "bills/bill_search.h"
#include "bills/print_bills.h"
#include "cheques/issue_cheque.h"
#include "common/acts.h"
#include "labels/customer_selection.h"
#include "labels/print_labels.h"
#include "labels/print_selection.h"
#include "labels/queue.h"
#include "reprint/reprint_note.h"
#include "slips/print_slips.h"
#include "tests/slips/slip_fixture.h"
#include "tests/support/answers.h"
#include "tests/support/test_environment.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {

struct NoAlert : AlertDialog {
    void show(AlertMode /*mode*/) override { ADD_FAILURE() << "nothing to accept here"; }
};

class ToldActs : public testing::Test {
protected:
    ToldActs() {
        session.NCOMPANYCODE = 2041;
        session.SERVERNAME = "SRV";
        order.text(OrderColumn::Order) = "45112";
    }
    void generate() {
        seams.loader.on("Seleciona_Obs", answers::observation(""));
        NoAlert alert;
        generateNote(seams.environment, session, alert, "45112",
                     [](Environment&, const Sessao&, XmlDocument&, const std::string&) {});
    }
    const std::vector<std::string>& told() const { return seams.acts.told; }

    TestEnvironment seams;
    Sessao session;
    GridRow order{.cells = std::vector<std::string>(orderGrid().size())};
};

TEST_F(ToldActs, ANoteGeneratedAndPrinted) {
    seams.loader.on("SP_GERA_NF", answers::generatedNote("8529", "U"))
        .on("sel_gera_nf", answers::status("OK"));
    generate();
    EXPECT_EQ(told(), (Texts{"NF 008529 da ordem 45112 enviada | NF 008529 gerada | use "
                             "ReImpressão de NF"}));
}

TEST_F(ToldActs, ANoteGeneratedOfWhichTheDocumentDoesntCome) {
    seams.loader.on("SP_GERA_NF", answers::generatedNote("8529", "U"))
        .on("sel_gera_nf", answers::status("Recusa"));
    generate();
    seams.loader.failOn("sel_gera_nf&");
    EXPECT_EQ(told(), (Texts{"NF 008529 da ordem 45112 gerada, mas não impressa: use "
                             "ReImpressão de NF"}));
    ScriptedLoader cut;
    seams.loader = cut.on("SP_GERA_NF", answers::generatedNote("8529", "U"));
    generate();
    EXPECT_EQ(told().size(), 2U);
    EXPECT_EQ(told().front(), told().back());
}

TEST_F(ToldActs, ANoteThatIsntKnownToExistIsntTold) {
    seams.loader.on("SP_GERA_NF", answers::status("Crédito bloqueado"));
    generate();
    EXPECT_EQ(told(), Texts{});
}

TEST_F(ToldActs, ANoteReprinted) {
    seams.loader.on("sel_gera_nf", answers::status("OK"));
    session.NCOMPANYCODE = 2161;
    session.ID_ETB_TARN = 6001;  // has no form: nothing to print
    reprintNote(seams.environment, session, "8529", "U");
    EXPECT_EQ(told(), (Texts{"NF 008529 enviada de novo | NF 008529 lida do servidor | "
                             "imprima de novo"}));
}

TEST_F(ToldActs, ANoteCancelled) {
    const CancelRequest request{
        .number = "8529", .series = "U", .noteKind = "S", .option = Rebilling::With, .reason = 1};
    seams.loader.on("sp_can_nf", answers::status("Recusa")).on("sp_can_nf", answers::status("OK"));
    cancelNote(seams.environment, session, request);
    EXPECT_EQ(told(), Texts{});
    cancelNote(seams.environment, session, request);
    EXPECT_EQ(told(), (Texts{"NF 008529 cancelada"}));
}

TEST_F(ToldActs, AnOrderCancelled) {
    seams.loader.on("sp_can_oft", answers::status("Recusa"))
        .on("sp_can_oft", answers::status("OK"));
    cancelOrder(seams.environment, session, order);
    EXPECT_EQ(told(), Texts{});
    cancelOrder(seams.environment, session, order);
    EXPECT_EQ(told(), (Texts{"Ordem 45112 cancelada"}));
}

TEST_F(ToldActs, AnOrderMaintained) {
    const commands::OrderData data{
        .order = "45112", .observation = "", .quantity = "1", .grossWeight = "1", .netWeight = "1"};
    saveOrder(seams.environment, session, data);
    EXPECT_EQ(told(), Texts{}) << "the answer was lost";
    seams.loader.on("MANUTENCAO_OFT", answers::status("OK"));
    saveOrder(seams.environment, session, data);
    EXPECT_EQ(told(), (Texts{"Ordem 45112 gravada"}));
}

TEST_F(ToldActs, AnOrderSheet) {
    seams.loader.on(
        "sel_impr_ordem_fatu",
        answers::declaration + "<PRINCIPAL cod='0' status='OK'><CAB RAZAO='CLIENTE'/></PRINCIPAL>");
    printSelectedOrder(seams.environment, session, "45112");
    EXPECT_EQ(told(), (Texts{"Folha da ordem 45112 enviada | Folha da ordem 45112 lida do "
                             "servidor | imprima de novo"}));
}

XmlDocument rowsOf(const std::string& rows) {
    XmlDocument parsed;
    EXPECT_TRUE(parsed.loadXML(answers::rowset(rows)));
    return parsed;
}

std::vector<GridRow> ticked(std::vector<GridRow> rows) {
    for (GridRow& row : rows) {
        row.ticked = true;
    }
    return rows;
}

TEST_F(ToldActs, BillsAndReceipts) {
    const XmlDocument company = rowsOf("<z:row/>");
    const auto print = [&](const std::string& rows, bool triplicate) {
        const auto lines = ticked(billRows(rowsOf(rows)));
        const BillPictures pictures;
        printBills(seams.environment, 2041, company,
                   {.lines = lines, .triplicate = triplicate, .pictures = pictures}, {});
    };
    const std::string bill = "<z:row VL_PRN_DOC='1' ID_TIP_DOC='1'/>";
    const std::string receipt = "<z:row VL_PRN_DOC='1' ID_TIP_DOC='12'/>";
    print(bill + bill, false);
    print(bill, true);
    print(bill + receipt, false);
    print("", false);
    EXPECT_EQ(told(),
              (Texts{"2 duplicatas enviadas | 2 duplicatas preparadas | imprima de novo",
                     "1 triplicata enviada | 1 triplicata preparada | imprima de novo",
                     "1 duplicata e 1 recibo enviados | 1 duplicata e 1 recibo preparados | "
                     "imprima de novo"}));
}

TEST_F(ToldActs, Slips) {
    const auto print = [this](std::vector<GridRow> rows) {
        printSlips(seams.environment, session, wallet101, {.next = "12"}, rows,
                   {.untick = [](std::size_t) {}});
    };
    const GridRow ofAnotherBank = [] {
        GridRow row = document();
        row.text(SlipColumn::Bank) = "1";
        return row;
    }();
    print(ticked({document(), document(), ofAnotherBank}));
    print(ticked({document()}));
    print(ticked({ofAnotherBank}));
    print({document()});
    EXPECT_EQ(told(), (Texts{"2 boletos (nº 0000012 a 0000013) enviados | 2 boletos (nº 0000012 a "
                             "0000013) preparados | imprima de novo com os mesmos números",
                             "1 boleto (nº 0000012) enviado | 1 boleto (nº 0000012) preparado | "
                             "imprima de novo com os mesmos números",
                             "Nenhum boleto impresso"}))
        << "with nothing ticked there is nothing to tell";
}

TEST_F(ToldActs, ACheque) {
    const ChequeFields cheque{.account = BankAccount{.description = "BANCO", .NR_OFI_BAN = "1"},
                              .number = " 1002 ",
                              .series = "a",
                              .value = "80,00",
                              .payee = "",
                              .depositDate = "15/03/2012",
                              .observation = ""};
    seams.loader.on("sel_dados_empresa", answers::rowset("<z:row NM_MUN='ITU'/>"))
        .on("adiciona_controle", answers::status("OK"))
        .on("adiciona_controle", answers::status("Recusa"));
    issueCheque(seams.environment, session, cheque);
    issueCheque(seams.environment, session, cheque);
    EXPECT_EQ(told(),
              (Texts{"Cheque 1002 série A registrado e enviado | Cheque 1002 série A registrado | "
                     "anule-o e emita outro com o número seguinte",
                     "Cheque 1002 série A sem registro no servidor, enviado | Cheque 1002 série A "
                     "sem registro no servidor | imprima de novo"}));
}

TEST_F(ToldActs, LabelsOfTheQueue) {
    const auto print = [this](labels::LabelForm form, const std::string& rows) {
        labels::printLabels(seams.environment, form, {rowsOf(rows), labels::Sender()}, {});
    };
    for (const auto form : {labels::LabelForm::Pimaco6280, labels::LabelForm::DotMatrix}) {
        seams.acts.told.clear();
        print(form, "<z:row/><z:row/><z:row/>");
        print(form, "");
        EXPECT_EQ(told(), (Texts{"3 etiquetas enviadas | 3 etiquetas preparadas | imprima de "
                                 "novo",
                                 "Nenhuma etiqueta impressa"}));
    }
}

TEST_F(ToldActs, LabelsOfTheSelection) {
    const GridRow customer{.cells = std::vector<std::string>(labels::selectionGrid().size())};
    labels::printSelection(seams.environment, std::vector{customer, customer}, {});
    labels::printSelection(seams.environment, ticked({customer}), {});
    EXPECT_EQ(told(), (Texts{"Nenhuma etiqueta impressa",
                             "1 etiqueta enviada | 1 etiqueta preparada | imprima de novo"}));
}

TEST_F(ToldActs, LabelsDeleted) {
    labels::deleteLabels(seams.environment, session, "NATAL", {"1", "3"});
    seams.loader.on("exclui_etiquetas", answers::status("OK"));
    labels::deleteLabels(seams.environment, session, "NATAL", {"1", "3"});
    EXPECT_EQ(told(), (Texts{"Exclusão das etiquetas 1 a 3 sem resposta do servidor: confira "
                             "na fila",
                             "Exclusão das etiquetas 1 a 3 enviada"}));
}

TEST(Acts, WithoutAListenerNothingHappens) {
    TestEnvironment seams;
    seams.environment.acts = nullptr;
    tellDone(seams.environment, "x");
    tellPrinted(seams.environment, {});
    EXPECT_EQ(seams.acts.told, Texts{});
}

TEST(Acts, NameANoteAsItIsPrinted) {
    EXPECT_EQ(noteName("8529"), "NF 008529");
    EXPECT_EQ(noteName("1234567"), "NF 1234567");
    EXPECT_EQ(noteName(""), "NF 000000");
}

TEST(Acts, CountInPortuguese) {
    EXPECT_EQ(counted(1, {"boleto", "boletos"}), "1 boleto");
    EXPECT_EQ(counted(31, {"etiqueta", "etiquetas", true}), "31 etiquetas");
    EXPECT_EQ(piecesSent("1 recibo", 1, false, "x").sent, "1 recibo enviado");
    EXPECT_EQ(piecesSent("2 duplicatas", 2, true, "x").made, "2 duplicatas preparadas");
}

}  // namespace
}  // namespace tarn::test
