#include "tests/desk/printed_documents.h"

#include "billing/alert.h"
#include "billing/generate_note.h"
#include "billing/order_sheet.h"
#include "bills/bill_search.h"
#include "bills/print_bills.h"
#include "cheques/issue_cheque.h"
#include "labels/customer_selection.h"
#include "labels/print_labels.h"
#include "labels/print_selection.h"
#include "reprint/reprint_note.h"
#include "slips/print_slips.h"
#include "tests/slips/slip_fixture.h"
#include "tests/support/answers.h"
#include "tests/support/files.h"
#include "tests/support/sessions.h"
#include "tests/support/user.h"

namespace tarn::test {
namespace {

std::vector<GridRow> ticked(std::vector<GridRow> rows) {
    for (GridRow& row : rows) {
        row.ticked = true;
    }
    return rows;
}

// Of a company and an establishment, which decide the form.
template <int company, int establishment, void (*print)(PrintingDesk&)>
void at(PrintingDesk& desk) {
    desk.session = sessionOf(company, establishment);
    print(desk);
}

// Notes

struct NoAlert : AlertDialog {
    void show(AlertMode /*mode*/) override { ADD_FAILURE() << "nothing to accept here"; }
};

void issue(PrintingDesk& desk) {
    desk.machine.loader.on("Seleciona_Obs", answers::observation(""))
        .on("SP_GERA_NF", answers::generatedNote("8529", "U"))
        .on("sel_gera_nf", contentOf(TARN_TESTS "/notes/data/note_1361.xml"));
    NoAlert alert;
    generateNote(desk.environment, desk.session, alert, "45112");
}

void reprint(PrintingDesk& desk) {
    desk.machine.loader.on("sel_gera_nf", contentOf(TARN_TESTS "/notes/data/note_1361.xml"));
    reprintNote(desk.environment, desk.session, "8529", "U");
}

// Order sheets

void sheet(PrintingDesk& desk) {
    desk.machine.loader.on("sel_impr_ordem_fatu",
                           contentOf(TARN_TESTS "/billing/data/order_in_parcels.xml"));
    printSelectedOrder(desk.environment, desk.session, "45112");
}

// Bills

void bills(PrintingDesk& desk, const std::string& kind, bool triplicate) {
    const std::string row = "<z:row VL_PRN_DOC='10.5' ID_TIP_DOC='" + kind + "'/>";
    XmlDocument company;
    XmlDocument rows;
    ASSERT_TRUE(company.loadXML(answers::rowset("<z:row/>")));
    ASSERT_TRUE(rows.loadXML(answers::rowset(row + row)));
    const std::vector<GridRow> lines = ticked(billRows(rows));
    const BillPictures pictures{.picLogo = Picture("picLogo", "x"),
                                .picVert = Picture("picVert", "x"),
                                .picAss = Picture("picAss", "x")};
    printBills(desk.environment, 2041, company,
               {.lines = lines, .triplicate = triplicate, .pictures = pictures}, {});
}

void duplicates(PrintingDesk& desk) {
    bills(desk, "1", false);
}

void triplicates(PrintingDesk& desk) {
    bills(desk, "1", true);
}

void receipts(PrintingDesk& desk) {
    bills(desk, "12", false);
}

// Slips

void slips(PrintingDesk& desk, const Portfolio& portfolio) {
    const std::vector<GridRow> rows = ticked({document(), document()});
    printSlips(desk.environment, desk.session, portfolio, {.next = "12", .includesPortfolio = true},
               rows, {.untick = [](std::size_t) {}});
}

void slips57(PrintingDesk& desk) {
    slips(desk, isWallet57);
}

void slips101(PrintingDesk& desk) {
    slips(desk, wallet101);
}

// Cheques

void cheque(PrintingDesk& desk, const char* bank) {
    const ChequeFields fields{.account = BankAccount{.description = "BANCO", .NR_OFI_BAN = bank},
                              .number = "1002",
                              .series = "A",
                              .value = "80,00",
                              .payee = "MARIA",
                              .depositDate = "15/03/2012",
                              .observation = ""};
    desk.machine.loader.on("sel_dados_empresa", answers::rowset("<z:row NM_MUN='ITU'/>"))
        .on("adiciona_controle", answers::status("OK"));
    issueCheque(desk.environment, desk.session, fields);
}

void cheque1(PrintingDesk& desk) {
    cheque(desk, "1");
}

void cheque33(PrintingDesk& desk) {
    cheque(desk, "033");
}

// Labels

template <labels::LabelForm form, int count>
void labelsOf(PrintingDesk& desk) {
    std::string rows;
    for (int row = 0; row < count; ++row) {
        rows += "<z:row NOME='CLIENTE' MUNICIPIO='ITU'/>";
    }
    labels::PrintRun run;
    ASSERT_TRUE(run.labels.loadXML(answers::rowset(rows)));
    labels::printLabels(desk.environment, form, run, {});
}

void selection(PrintingDesk& desk) {
    const GridRow customer{.cells = std::vector<std::string>(labels::selectionGrid().size(), "x")};
    const std::vector<GridRow> customers = ticked({customer, customer});
    labels::printSelection(desk.environment, customers, {});
}

constexpr char again[] = "imprima de novo";

}  // namespace

std::string PrintingDesk::told() const {
    constexpr std::size_t time = 6;  // "10:32 "
    const std::string line = named<QLabel>(menu_, "Panel3").text().toStdString();
    return line.size() < time ? line : line.substr(time);
}

std::vector<PrintedDocument> rawDocuments() {
    using labels::LabelForm;
    const std::string anew = "anule-o e emita outro com o número seguinte";
    const std::string sameNumbers = "imprima de novo com os mesmos números";
    return {{"note", at<1361, 1, issue>, "NF 008529 gerada", "use ReImpressão de NF"},
            {"note again", at<1361, 1, reprint>, "NF 008529 lida do servidor", again},
            {"order sheet", at<2041, 1, sheet>, "Folha da ordem 45112 lida do servidor", again},
            {"order sheet with prices", at<1361, 1, sheet>, "Folha da ordem 45112 lida do servidor",
             again},
            {"slips of portfolio 57", slips57,
             "2 boletos (nº 0000000000012 a 0000000000013) preparados", sameNumbers},
            {"slips", slips101, "2 boletos (nº 0000012 a 0000013) preparados", sameNumbers},
            {"cheque", cheque1, "Cheque 1002 série A registrado", anew},
            {"cheque of bank 33", cheque33, "Cheque 1002 série A registrado", anew},
            {"labels, dot-matrix", labelsOf<LabelForm::DotMatrix, 31>, "31 etiquetas preparadas",
             again}};
}

std::vector<PrintedDocument> drawnDocuments() {
    using labels::LabelForm;
    return {{"note", at<2541, 1, issue>, "NF 008529 gerada", "use ReImpressão de NF"},
            {"note again", at<2541, 6001, reprint>, "NF 008529 lida do servidor", again},
            {"bills", duplicates, "2 duplicatas preparadas", again, false},
            {"triplicates", triplicates, "2 triplicatas preparadas", again, false},
            {"receipts", receipts, "2 recibos preparados", again, false},
            {"labels, 6280", labelsOf<LabelForm::Pimaco6280, 31>, "31 etiquetas preparadas", again,
             true, true},
            {"labels, A5", labelsOf<LabelForm::A5, 3>, "3 etiquetas preparadas", again, true, true},
            {"labels, A4", labelsOf<LabelForm::A4WithSender, 3>, "3 etiquetas preparadas", again,
             true, true},
            {"labels of a selection", selection, "2 etiquetas preparadas", again}};
}

}  // namespace tarn::test
