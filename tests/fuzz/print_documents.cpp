#include <array>
#include <string>
#include <vector>

#include "billing/order_sheet.h"
#include "bills/bill_search.h"
#include "bills/print_bills.h"
#include "cheques/imprime_cheque.h"
#include "labels/customer_selection.h"
#include "labels/print_labels.h"
#include "labels/print_selection.h"
#include "runtime/runtime_error.h"
#include "slips/print_slips.h"
#include "slips/slip_search.h"
#include "tests/fuzz/checked_press.h"
#include "tests/fuzz/fuzz_entries.h"
#include "tests/fuzz/made_answers.h"
#include "tests/fuzz/wild_values.h"

namespace tarn::fuzz {

namespace {

using namespace std::string_view_literals;

void requireLineEnds(const CheckingSpooler& spooler, std::size_t count) {
    if (spooler.lineEnds != count) {
        broken("a value has moved a line");
    }
}

void printOrderSheet(ByteSource& source, CheckedPress& press) {
    Sessao session;
    session.NCOMPANYCODE = source.oneIn(2) ? 1361 : 2041;
    XmlDocument order = madeOrder(source);
    printOrder(press.environment, session, order);
    if (!press.spooler.closed() || !order.empty()) {
        broken("an order printed to its end left its job or its document");
    }
}

void tick(std::vector<GridRow>& rows, ByteSource& source) {
    for (GridRow& row : rows) {
        row.ticked = !source.oneIn(4);
    }
}

void printBankSlips(ByteSource& source, CheckedPress& press) {
    constexpr std::array numbers{"1"sv,       "123456"sv, "9999999"sv, "1234567890123"sv, ""sv,
                                 "1.000,5"sv, "-1"sv,     "x"sv,       "99999999999999"sv};
    press.spooler.setOrder(CheckingSpooler::Order::Loose);  // another bank's job stays open
    Sessao session;
    const Portfolio portfolio = portfolioOf(madePortfolio(source));
    const SlipRun run{.next = std::string(source.of(numbers)),
                      .includesPortfolio = source.oneIn(2)};
    std::vector<GridRow> rows = slipRows(madeDocuments(source));
    tick(rows, source);
    printSlips(press.environment, session, portfolio, run, rows,
               {.untick = [&rows](std::size_t i) { rows[i].ticked = false; }});
    constexpr std::size_t linesOfSlip = 24;  // of both layouts
    if (press.spooler.lineEnds % linesOfSlip != 0) {
        broken("a value has moved a line of a slip");
    }
}

void printBillPages(ByteSource& source, CheckedPress& press) {
    const XmlDocument company = madeCompany(source);
    const bool triplicate = source.oneIn(2);
    const std::int32_t number = source.oneIn(2) ? 1361 : 2041;
    std::vector<GridRow> rows = billRows(madeDocuments(source));
    tick(rows, source);
    const BillPictures pictures{.picLogo = Picture("picLogo", "x"), .picVert = {}, .picAss = {}};
    printBills(press.environment, number, company,
               {.lines = rows, .triplicate = triplicate, .pictures = pictures}, {});
}

void printOneCheque(ByteSource& source, CheckedPress& press) {
    constexpr std::array banks{"033"sv, "1"sv, " 237 "sv, "32767"sv, "32768"sv, ""sv, "x"sv};
    constexpr std::array dates{"05/03/2012"sv, "31/12/1999"sv, "1/2/3"sv, "05/13/2012"sv,
                               "//"sv,         "05-03-2012"sv, ""sv,      "a/b/c/d"sv};
    const std::int16_t bank = bankCode(source.of(banks));
    const std::string value =
        source.oneIn(2) ? std::string(wildNumber(source)) : std::string("1.234,56");
    const std::string date(source.oneIn(4) ? wildText(source) : source.of(dates));
    const std::string payee = wildText(source);
    const std::string town = wildText(source);
    ImprimeCheque(press.environment, {.nNr_Ofi_Ban = bank,
                                      .sValor = value,
                                      .sFavorecido = payee,
                                      .sDataDeposito = date,
                                      .sNmMun = town});
    constexpr std::int16_t bank33 = 33;
    requireLineEnds(press.spooler, bank == bank33 ? 36 : 18);
}

void printLabelSheets(ByteSource& source, CheckedPress& press) {
    constexpr std::array forms{"1"sv, "2"sv, "3"sv, "4"sv};
    const labels::LabelForm form = labels::labelFormOf(source.of(forms));
    press.spooler.setOrder(CheckingSpooler::Order::Loose);  // drawn runs close what isn't open
    const labels::Sender sender = labels::readSender(madeSender(source));
    const labels::PrintRun run{madeLabels(source), sender};
    const std::size_t count = labels::Labels(run.labels).count();
    labels::printLabels(press.environment, form, run, {});
    constexpr std::size_t across = 4;
    constexpr std::size_t linesOfGroup = 6;
    requireLineEnds(press.spooler, form == labels::LabelForm::DotMatrix
                                       ? (count + across - 1) / across * linesOfGroup
                                       : 0);
}

void printSelectedLabels(ByteSource& source, CheckedPress& press) {
    std::vector<GridRow> rows = labels::customersOf(madeCustomers(source));
    tick(rows, source);
    labels::printSelection(press.environment, rows, {});
}

constexpr std::array documents{printOrderSheet, printBankSlips,   printBillPages,
                               printOneCheque,  printLabelSheets, printSelectedLabels};

}  // namespace

void printDocuments(std::span<const std::uint8_t> bytes) {
    ByteSource source(bytes);
    const auto print = documents.at(source.below(documents.size()));
    CheckedPress press;
    try {
        print(source, press);
    } catch (const RuntimeError&) {
        return;
    }
}

}  // namespace tarn::fuzz
