#include "bills/print_bills.h"

#include <algorithm>
#include <array>
#include <span>

#include "bills/bill_page.h"
#include "bills/bill_search.h"
#include "bills/receipt_page.h"
#include "common/acts.h"
#include "common/boxes.h"
#include "common/valor_extenso.h"
#include "gateway/answer.h"
#include "gateway/commands.h"
#include "gateway/failure_texts.h"
#include "platform/environment.h"
#include "runtime/numbers.h"
#include "runtime/runtime_error.h"

namespace tarn {
namespace {

// Types drawn as bills. The report at the end knows fewer of them.
constexpr std::array<double, 5> drawnKinds{1, 201, 202, 203, 262};
constexpr std::size_t reportedKinds = 4;

bool isOneOf(std::span<const double> kinds, const GridRow& document) {
    const auto kind = parseComma(document.text(BillColumn::DocumentKind));
    return kind && std::ranges::find(kinds, *kind) != kinds.end();
}

std::string wordsOf(const GridRow& document) {
    const std::string& value = document.text(BillColumn::Value);
    const auto number = parseComma(value);
    if (!number) {
        throw RuntimeError(RuntimeErrorCode::TypeMismatch,
                           "o documento nº " + document.text(BillColumn::Number) +
                               " está sem valor (\"" + value + "\")");
    }
    return ValorExtenso(*number, "REAIS", "REAL");
}

void draw(BillPage& paper, const Issuer& issuer, const GridRow& document) {
    const std::string inWords = wordsOf(document);
    if (isOneOf(drawnKinds, document)) {
        drawBill(paper, issuer, document, inWords);
    } else {
        drawReceipt(paper, issuer, document, inWords);
    }
}

// By the last row, ticked or not, and with two blanks inside: decision D62.
std::string finalMessage(const BillRun& documents) {
    const auto reported = std::span(drawnKinds).first<reportedKinds>();
    if (!isOneOf(reported, documents.lines.back())) {
        return "Recibo(s) impresso(s) com sucesso!     ";
    }
    const std::string kindName = documents.triplicate ? "Triplicata(s) " : "Duplicata(s) ";
    return kindName + " impressa(s) com sucesso!     ";
}

// Which pages were drawn; a document's own kind decides it.
PaperAct pagesSent(const BillRun& documents) {
    std::size_t bills = 0;
    std::size_t receipts = 0;
    for (const GridRow& document : documents.lines) {
        if (document.ticked) {
            ++(isOneOf(drawnKinds, document) ? bills : receipts);
        }
    }
    const Noun bill = documents.triplicate ? Noun{"triplicata", "triplicatas", true}
                                           : Noun{"duplicata", "duplicatas", true};
    std::string what = bills == 0 ? "" : counted(bills, bill);
    if (receipts > 0) {
        what += (bills == 0 ? "" : " e ") + counted(receipts, {"recibo", "recibos"});
    }
    return piecesSent(what, bills + receipts, receipts == 0, "imprima de novo");
}

}  // namespace

void printSelected(Environment& environment, const Sessao& session, const BillRun& documents,
                   const Progress& progress) {
    XmlDocument answer;
    // Without an answer the row is missing, which ends the program.
    requestAnswer(environment, commands::sel_dados_empresa(session), answer, failure::Tarn0009);
    printBills(environment, session.NCOMPANYCODE, answer, documents, progress);
}

void printBills(Environment& environment, std::int32_t company, const XmlDocument& companyData,
                const BillRun& documents, const Progress& progress) {
    const Issuer issuer{.company = company,
                        .data = companyDataOf(companyData),
                        .pictures = documents.pictures,
                        .triplicate = documents.triplicate};
    const auto pages =
        static_cast<std::size_t>(std::ranges::count(documents.lines, true, &GridRow::ticked));
    if (pages == 0) {
        return inform(environment, "Selecione um documento.     ");
    }
    if (progress) {
        progress(0, pages);
    }
    DrawnRun run(environment);
    run.printer().setCopies(1);
    BillPage paper(run);
    for (const GridRow& document : documents.lines) {
        if (document.ticked) {
            draw(paper, issuer, document);
            run.newPage();  // also behind the last page: decision D57
        }
    }
    run.endDocument(progress, pages);
    tellPrinted(environment, pagesSent(documents));
    if (run.failed()) {
        return;
    }
    inform(environment, finalMessage(documents));
}

}  // namespace tarn
