#include "bills/receipt_page.h"

#include "bills/bill_search.h"

namespace tarn {
namespace {

constexpr std::size_t piece = 60;  // characters of a line of words or reference

std::string hyphenatedStrip(const std::string& inWords) {
    constexpr std::size_t hyphens = 282;
    return inWords + " " + std::string(hyphens, '-');
}

std::string referenceStrip(const std::string& reference) {
    constexpr std::size_t blanks = 300;
    return reference + std::string(blanks, ' ');
}

void title(BillPage& paper, const GridRow& document) {
    paper.drawLine(leftMargin, 4.05, rightMargin, 4.05, 6);
    paper.ImprimeLinha("Nº " + document.text(BillColumn::Number), 2, 5, 14);
    paper.ImprimeLinha("RECIBO", 9.8, 5, 16);
    paper.ImprimeLinha("R$ " + document.text(BillColumn::Value), 16, 5, 14);
    paper.drawLine(leftMargin, 5.5, rightMargin, 5.5, 6);
}

void receiptPayer(BillPage& paper, const GridRow& document) {
    const bool legalPerson = document.text(BillColumn::PersonKind) == "J";
    paper.ImprimeLinha("Nome do Sacado", 2, 6.5, 10);
    paper.ImprimeLinha(document.text(BillColumn::Customer), 5, 6.5, 10);
    paper.ImprimeLinha("Endereço", 2, 7.2, 10);
    paper.ImprimeLinha(document.text(BillColumn::Address), 5, 7.2, 10);
    paper.ImprimeLinha("Município", 2, 7.9, 10);
    paper.ImprimeLinha(document.text(BillColumn::Town), 5, 7.9, 10);
    paper.ImprimeLinha("Estado", 10, 7.9, 10);
    paper.ImprimeLinha(document.text(BillColumn::State), 11.5, 7.9, 10);
    paper.ImprimeLinha("CEP", 16.5, 7.9, 10);
    paper.ImprimeLinha(document.text(BillColumn::PostalCode), 18, 7.9, 10);
    paper.ImprimeLinha(legalPerson ? "CNPJ Nº" : "CPF Nº", 2, 8.6, 10);
    paper.ImprimeLinha(document.text(BillColumn::CpfCnpj), 5, 8.6, 10);
    paper.ImprimeLinha("I.E. Nº", 14.5, 8.6, 10);
    paper.ImprimeLinha(document.text(BillColumn::Registration), 16, 8.6, 10);
}

void amountAndReference(BillPage& paper, const GridRow& document, const std::string& inWords) {
    paper.ImprimeLinha(" VALOR ", 2, 9.3, 10);
    paper.ImprimeLinha("  POR  ", 2, 9.7, 10);
    paper.ImprimeLinha("EXTENSO", 2, 10.1, 10);
    drawPieces(paper, hyphenatedStrip(inWords), piece, 5, {9.3, 9.7, 10.1}, 11);
    paper.ImprimeLinha("Referente a ", 2, 10.8, 10);
    drawPieces(paper, referenceStrip(document.text(BillColumn::Reference)), piece, 5,
               {10.8, 11.2, 11.6, 12, 12.4}, 11);
}

void signature(BillPage& paper) {
    paper.drawLine(2.8, 13.2, 7, 13.2, 2);
    paper.ImprimeLinha(" /          /", 4.2, 13.3, 10);
    paper.ImprimeLinha("DATA RECEBIMENTO", 3.7, 13.7, 10);
    paper.drawLine(13, 13.2, 19, 13.2, 3);
    paper.ImprimeLinha("ASSINATURA EMPRESA", 14.7, 13.7, 10);
    paper.drawLine(leftMargin, 13.8, rightMargin, 13.8, 10);
}

}  // namespace

void drawReceipt(BillPage& paper, const Issuer& issuer, const GridRow& document,
                 const std::string& inWords) {
    drawHeader(paper, issuer, document,
               {.issuedLabel = "DATA DE EMISSAO:", .place = " - Estado de " + issuer.data.NM_UF});
    title(paper, document);
    receiptPayer(paper, document);
    amountAndReference(paper, document, inWords);
    signature(paper);
}

}  // namespace tarn
