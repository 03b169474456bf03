#include "bills/bill_search.h"
#include "bills/pages.h"

namespace tarn {
namespace {

namespace coluna = coluna_duplicata;

// Fills what the words leave free, so that nothing can be written in behind them.
std::string tiraDoValor(const std::string& extenso) {
    constexpr int pares = 126;
    std::string tira = extenso + " ";
    for (int i = 0; i < pares; ++i) {
        tira += ".X";
    }
    return tira;
}

std::string favorecido(const Emitente& emitente) {
    switch (emitente.empresa) {
        case 1521:
            return "ORVALHO MÓVEIS LTDA.";
        case 2801:
            return "ZENTRA COM. E REPRES. DE PEÇAS HIDRÁULICAS LTDA.";
        default:
            return emitente.dados.DC_RAZ_SOC_ETB;
    }
}

void moldura(Papel& papel, const FigurasDuplicata& figuras) {
    papel.risca(margemEsquerda, 4.05, margemDireita, 4.05, 10);
    papel.risca(3.0, 4.3, 3.0, 13.5, 3);
    papel.figura(figuras.picAss, 3.2, 7.0);
    papel.figura(figuras.picVert, margemEsquerda, 4.6);
}

void fatura(Papel& papel, const LinhaGrade& documento) {
    papel.ImprimeLinha("Fatura/NF", 6, 5, 9);
    papel.ImprimeLinha(documento.coluna(coluna::notaFiscal), 6.2, 5.5, 9);
    papel.ImprimeLinha("Fatura/NF", 8.8, 4.8, 8);
    papel.ImprimeLinha("Valor R$", 8.8, 5.1, 8);
    papel.ImprimeLinha("R$ " + documento.coluna(coluna::valor), 8.3, 5.5, 9);
    papel.ImprimeLinha(" Duplicata Nº ", 11, 5, 8);
    papel.ImprimeLinha(documento.coluna(coluna::numero), 11.4, 5.5, 9);
    papel.ImprimeLinha("Vencimento", 14.1, 5, 8);
    papel.ImprimeLinha(documento.coluna(coluna::vencimento), 14.2, 5.5, 9);
    papel.ImprimeLinha("Desconto de", 5.3, 6.2, 7, false);
    papel.ImprimeLinha("Condições Especiais", 5.3, 6.5, 7, false);
    papel.ImprimeLinha("Até", 13, 6.2, 7, false);
    papel.risca(4.8, 6.55, margemDireita, 6.55, 10);
}

// Town, state and postal code on one line, each behind its label.
void localidade(Papel& papel, double y, const std::string& municipio, const std::string& estado,
                const std::string& cep) {
    papel.ImprimeLinha("Município", 5.4, y, 8);
    papel.ImprimeLinha(municipio, 9, y, 8);
    papel.ImprimeLinha("Estado", 13, y, 8);
    papel.ImprimeLinha(estado, 14.3, y, 8);
    papel.ImprimeLinha("CEP", 16.5, y, 8);
    papel.ImprimeLinha(cep, 18, y, 8);
}

void sacado(Papel& papel, const LinhaGrade& documento) {
    const bool juridica = documento.coluna(coluna::tipoPessoa) == "J";
    papel.ImprimeLinha("Nome do Sacado", 5.4, 7.5, 8);
    papel.ImprimeLinha(documento.coluna(coluna::cliente), 9, 7.5, 8);
    papel.ImprimeLinha("Endereço", 5.4, 7.9, 8);
    papel.ImprimeLinha(documento.coluna(coluna::endereco), 9, 7.9, 8);
    localidade(papel, 8.3, documento.coluna(coluna::municipio), documento.coluna(coluna::estado),
               documento.coluna(coluna::cep));
    papel.ImprimeLinha(juridica ? "C.N.P.J. (M.F.) Nº" : "CPF Nº", 5.4, 8.7, 8);
    papel.ImprimeLinha(documento.coluna(coluna::cpfCnpj), 9, 8.7, 8);
    papel.ImprimeLinha("I.E. Nº", 15, 8.7, 8);
    papel.ImprimeLinha(documento.coluna(coluna::inscricao), 16, 8.7, 8);
}

void cobranca(Papel& papel, const LinhaGrade& documento) {
    const std::string& endereco = documento.coluna(coluna::enderecoCobranca);
    const bool outro = endereco != documento.coluna(coluna::endereco);
    papel.ImprimeLinha("Endereço de Cobrança", 5.4, 9.5, 8);
    papel.ImprimeLinha(outro ? endereco : "O MESMO", 9, 9.5, 8);
    if (outro) {
        localidade(papel, 9.9, documento.coluna(coluna::municipioCobranca),
                   documento.coluna(coluna::estadoCobranca), documento.coluna(coluna::cepCobranca));
    }
}

void valorPorExtenso(Papel& papel, const std::string& extenso) {
    papel.ImprimeLinha("VALOR", 6, 11.2, 8);
    papel.ImprimeLinha("POR", 6.2, 11.6, 8);
    papel.ImprimeLinha("EXTENSO", 5.9, 12, 8);
    desenhaPedacos(papel, tiraDoValor(extenso), 53, 9, {11.2, 11.6, 12}, 10);
}

void aceite(Papel& papel, const Emitente& emitente) {
    const std::string especie = emitente.triplicata ? "TRIPLICATA" : "DUPLICATA";
    papel.ImprimeLinha("Reconheço(cemos) a exatidão desta " + especie +
                           " DE VENDA MERCANTIL na importância acima, que pagarei(emos)",
                       5.4, 12.6, 7);
    papel.ImprimeLinha(
        "à " + favorecido(emitente) + ", ou à sua ordem na praça e vencimento acima indicado.", 5.4,
        12.9, 7);
    papel.risca(4.8, 13.2, 9, 13.2, 2);
    papel.ImprimeLinha(" /          /", 6.2, 13.3, 10);
    papel.ImprimeLinha("DATA DE ACEITE", 6.2, 13.7, 8);
    papel.risca(14, 13.2, 19, 13.2, 2);
    papel.ImprimeLinha("ASSINATURA DO SACADO", 15.2, 13.7, 8);
    papel.risca(margemEsquerda, 13.8, margemDireita, 13.8, 10);
}

}  // namespace

void desenhaDuplicata(Papel& papel, const Emitente& emitente, const LinhaGrade& documento,
                      const std::string& extenso) {
    const DadosEmpresa& dados = emitente.dados;
    desenhaCabecalho(papel, emitente, documento,
                     {.rotuloEmissao = "DATA DE EMISSÃO:",
                      .localidade = " - " + dados.NM_MUN + " - " + dados.SG_UF});
    moldura(papel, emitente.figuras);
    fatura(papel, documento);
    sacado(papel, documento);
    cobranca(papel, documento);
    valorPorExtenso(papel, extenso);
    aceite(papel, emitente);
}

}  // namespace tarn
