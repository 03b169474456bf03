#include "bills/bill_search.h"
#include "bills/pages.h"
#include "runtime/text.h"

namespace tarn {

void desenhaCabecalho(Papel& papel, const Emitente& emitente, const LinhaGrade& documento,
                      const Cabecalho& cabecalho) {
    const DadosEmpresa& dados = emitente.dados;
    papel.risca(margemEsquerda, 0.9, margemDireita, 0.9, 15);
    papel.figura(emitente.figuras.picLogo, 1.6, 1.3);
    papel.ImprimeLinha(dados.DC_RAZ_SOC_ETB, 11, 1.6, 9);
    papel.ImprimeLinha(dados.DC_LG + " - " + " - " + dados.NM_BRR, 11, 2.0, 6);
    papel.ImprimeLinha("CEP: " + dados.CD_CEP + cabecalho.localidade, 11, 2.4, 6);
    papel.ImprimeLinha("Inscrição " + dados.inscricaoFederal, 11, 2.8, 6);
    papel.ImprimeLinha("Inscrição Estadual - " + dados.CD_ICR_EST, 11, 3.2, 6);
    papel.ImprimeLinha(
        "TEL.:" + dados.TELEFONE + " - FAX.:" + dados.FAX + " - E-MAIL:" + dados.EMAIL, 11, 3.6, 6);
    papel.ImprimeLinha(cabecalho.rotuloEmissao, 11, 4.0, 8);
    papel.ImprimeLinha(documento.coluna(coluna_duplicata::emissao), 14.3, 4.0, 8);
}

void desenhaPedacos(Papel& papel, std::string_view tira, std::size_t caracteres, double x,
                    std::initializer_list<double> alturas, double tamanho) {
    std::size_t inicio = 1;
    for (const double y : alturas) {
        papel.ImprimeLinha(midOf(tira, inicio, caracteres), x, y, tamanho, true, "Courier New");
        inicio += caracteres;
    }
}

}  // namespace tarn
