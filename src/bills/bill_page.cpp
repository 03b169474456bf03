#include "bills/bill_page.h"

#include "bills/bill_search.h"
#include "common/drawn_text.h"
#include "runtime/text.h"

namespace tarn {
namespace {

// Fills what the words leave free, so that nothing can be written in behind them.
std::string crossedStrip(const std::string& inWords) {
    constexpr int parameters = 126;
    std::string strip = inWords + " ";
    for (int i = 0; i < parameters; ++i) {
        strip += ".X";
    }
    return strip;
}

std::string payee(const Issuer& issuer) {
    switch (issuer.company) {
        case 1521:
            return "ORVALHO MÓVEIS LTDA.";
        case 2801:
            return "ZENTRA COM. E REPRES. DE PEÇAS HIDRÁULICAS LTDA.";
        default:
            return issuer.data.DC_RAZ_SOC_ETB;
    }
}

void frame(BillPage& paper, const BillPictures& pictures) {
    paper.drawLine(leftMargin, 4.05, rightMargin, 4.05, 10);
    paper.drawLine(3.0, 4.3, 3.0, 13.5, 3);
    paper.picture(pictures.picAss, 3.2, 7.0);
    paper.picture(pictures.picVert, leftMargin, 4.6);
}

void invoice(BillPage& paper, const GridRow& document) {
    paper.ImprimeLinha("Fatura/NF", 6, 5, 9);
    paper.ImprimeLinha(document.text(BillColumn::FiscalNote), 6.2, 5.5, 9);
    paper.ImprimeLinha("Fatura/NF", 8.8, 4.8, 8);
    paper.ImprimeLinha("Valor R$", 8.8, 5.1, 8);
    paper.ImprimeLinha("R$ " + document.text(BillColumn::Value), 8.3, 5.5, 9);
    paper.ImprimeLinha(" Duplicata Nº ", 11, 5, 8);
    paper.ImprimeLinha(document.text(BillColumn::Number), 11.4, 5.5, 9);
    paper.ImprimeLinha("Vencimento", 14.1, 5, 8);
    paper.ImprimeLinha(document.text(BillColumn::Due), 14.2, 5.5, 9);
    paper.ImprimeLinha("Desconto de", 5.3, 6.2, 7, false);
    paper.ImprimeLinha("Condições Especiais", 5.3, 6.5, 7, false);
    paper.ImprimeLinha("Até", 13, 6.2, 7, false);
    paper.drawLine(4.8, 6.55, rightMargin, 6.55, 10);
}

// Town, state and postal code on one line, each behind its label.
void place(BillPage& paper, double y, const std::string& town, const std::string& state,
           const std::string& cep) {
    paper.ImprimeLinha("Município", 5.4, y, 8);
    paper.ImprimeLinha(town, 9, y, 8);
    paper.ImprimeLinha("Estado", 13, y, 8);
    paper.ImprimeLinha(state, 14.3, y, 8);
    paper.ImprimeLinha("CEP", 16.5, y, 8);
    paper.ImprimeLinha(cep, 18, y, 8);
}

void payer(BillPage& paper, const GridRow& document) {
    const bool legalPerson = document.text(BillColumn::PersonKind) == "J";
    paper.ImprimeLinha("Nome do Sacado", 5.4, 7.5, 8);
    paper.ImprimeLinha(document.text(BillColumn::Customer), 9, 7.5, 8);
    paper.ImprimeLinha("Endereço", 5.4, 7.9, 8);
    paper.ImprimeLinha(document.text(BillColumn::Address), 9, 7.9, 8);
    place(paper, 8.3, document.text(BillColumn::Town), document.text(BillColumn::State),
          document.text(BillColumn::PostalCode));
    paper.ImprimeLinha(legalPerson ? "C.N.P.J. (M.F.) Nº" : "CPF Nº", 5.4, 8.7, 8);
    paper.ImprimeLinha(document.text(BillColumn::CpfCnpj), 9, 8.7, 8);
    paper.ImprimeLinha("I.E. Nº", 15, 8.7, 8);
    paper.ImprimeLinha(document.text(BillColumn::Registration), 16, 8.7, 8);
}

void collection(BillPage& paper, const GridRow& document) {
    const std::string& address = document.text(BillColumn::BillingAddress);
    const bool other = address != document.text(BillColumn::Address);
    paper.ImprimeLinha("Endereço de Cobrança", 5.4, 9.5, 8);
    paper.ImprimeLinha(other ? address : "O MESMO", 9, 9.5, 8);
    if (other) {
        place(paper, 9.9, document.text(BillColumn::BillingTown),
              document.text(BillColumn::BillingState),
              document.text(BillColumn::BillingPostalCode));
    }
}

void amountInWords(BillPage& paper, const std::string& inWords) {
    paper.ImprimeLinha("VALOR", 6, 11.2, 8);
    paper.ImprimeLinha("POR", 6.2, 11.6, 8);
    paper.ImprimeLinha("EXTENSO", 5.9, 12, 8);
    drawPieces(paper, crossedStrip(inWords), 53, 9, {11.2, 11.6, 12}, 10);
}

void acceptance(BillPage& paper, const Issuer& issuer) {
    const std::string kindName = issuer.triplicate ? "TRIPLICATA" : "DUPLICATA";
    paper.ImprimeLinha("Reconheço(cemos) a exatidão desta " + kindName +
                           " DE VENDA MERCANTIL na importância acima, que pagarei(emos)",
                       5.4, 12.6, 7);
    paper.ImprimeLinha(
        "à " + payee(issuer) + ", ou à sua ordem na praça e vencimento acima indicado.", 5.4, 12.9,
        7);
    paper.drawLine(4.8, 13.2, 9, 13.2, 2);
    paper.ImprimeLinha(" /          /", 6.2, 13.3, 10);
    paper.ImprimeLinha("DATA DE ACEITE", 6.2, 13.7, 8);
    paper.drawLine(14, 13.2, 19, 13.2, 2);
    paper.ImprimeLinha("ASSINATURA DO SACADO", 15.2, 13.7, 8);
    paper.drawLine(leftMargin, 13.8, rightMargin, 13.8, 10);
}

}  // namespace

void BillPage::ImprimeLinha(std::string_view text, double x, double y, double size, bool bold,
                            std::string_view font) {
    drawText(run_.printer(), text, x, y, {.name = font, .size = size, .bold = bold});
}

void BillPage::drawLine(double x1, double y1, double x2, double y2, int width) {
    run_.printer().DrawWidth = width;
    run_.check(run_.printer().Line(x1, y1, x2, y2));
}

void BillPage::picture(const std::optional<Picture>& which, double x, double y) {
    if (which) {
        run_.check(run_.printer().PaintPicture(*which, x, y));
    }
}

void drawHeader(BillPage& paper, const Issuer& issuer, const GridRow& document,
                const PageHeader& header) {
    const CompanyData& data = issuer.data;
    paper.drawLine(leftMargin, 0.9, rightMargin, 0.9, 15);
    paper.picture(issuer.pictures.picLogo, 1.6, 1.3);
    paper.ImprimeLinha(data.DC_RAZ_SOC_ETB, 11, 1.6, 9);
    paper.ImprimeLinha(data.DC_LG + " - " + " - " + data.NM_BRR, 11, 2.0, 6);
    paper.ImprimeLinha("CEP: " + data.CD_CEP + header.place, 11, 2.4, 6);
    paper.ImprimeLinha("Inscrição " + data.federalNumber, 11, 2.8, 6);
    paper.ImprimeLinha("Inscrição Estadual - " + data.CD_ICR_EST, 11, 3.2, 6);
    paper.ImprimeLinha("TEL.:" + data.TELEFONE + " - FAX.:" + data.FAX + " - E-MAIL:" + data.EMAIL,
                       11, 3.6, 6);
    paper.ImprimeLinha(header.issuedLabel, 11, 4.0, 8);
    paper.ImprimeLinha(document.text(BillColumn::Issued), 14.3, 4.0, 8);
}

void drawPieces(BillPage& paper, std::string_view strip, std::size_t characters, double x,
                std::initializer_list<double> heights, double size) {
    std::size_t start = 1;
    for (const double y : heights) {
        paper.ImprimeLinha(midOf(strip, start, characters), x, y, size, true, "Courier New");
        start += characters;
    }
}

void drawBill(BillPage& paper, const Issuer& issuer, const GridRow& document,
              const std::string& inWords) {
    const CompanyData& data = issuer.data;
    drawHeader(
        paper, issuer, document,
        {.issuedLabel = "DATA DE EMISSÃO:", .place = " - " + data.NM_MUN + " - " + data.SG_UF});
    frame(paper, issuer.pictures);
    invoice(paper, document);
    payer(paper, document);
    collection(paper, document);
    amountInWords(paper, inWords);
    acceptance(paper, issuer);
}

}  // namespace tarn
