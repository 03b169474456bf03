#include "bills/bill_search.h"
#include "bills/pages.h"
#include "runtime/text.h"

namespace tarn {

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

}  // namespace tarn
