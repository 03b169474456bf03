#include "bills/bill_search.h"
#include "bills/pages.h"

namespace tarn {
namespace {

namespace coluna = coluna_duplicata;

constexpr std::size_t pedaco = 60;  // characters of a line of words or reference

std::string tiraDoValor(const std::string& extenso) {
    constexpr std::size_t hifens = 282;
    return extenso + " " + std::string(hifens, '-');
}

std::string tiraDaReferencia(const std::string& referencia) {
    constexpr std::size_t brancos = 300;
    return referencia + std::string(brancos, ' ');
}

void titulo(Papel& papel, const LinhaGrade& documento) {
    papel.risca(margemEsquerda, 4.05, margemDireita, 4.05, 6);
    papel.ImprimeLinha("Nº " + documento.coluna(coluna::numero), 2, 5, 14);
    papel.ImprimeLinha("RECIBO", 9.8, 5, 16);
    papel.ImprimeLinha("R$ " + documento.coluna(coluna::valor), 16, 5, 14);
    papel.risca(margemEsquerda, 5.5, margemDireita, 5.5, 6);
}

void sacado(Papel& papel, const LinhaGrade& documento) {
    const bool juridica = documento.coluna(coluna::tipoPessoa) == "J";
    papel.ImprimeLinha("Nome do Sacado", 2, 6.5, 10);
    papel.ImprimeLinha(documento.coluna(coluna::cliente), 5, 6.5, 10);
    papel.ImprimeLinha("Endereço", 2, 7.2, 10);
    papel.ImprimeLinha(documento.coluna(coluna::endereco), 5, 7.2, 10);
    papel.ImprimeLinha("Município", 2, 7.9, 10);
    papel.ImprimeLinha(documento.coluna(coluna::municipio), 5, 7.9, 10);
    papel.ImprimeLinha("Estado", 10, 7.9, 10);
    papel.ImprimeLinha(documento.coluna(coluna::estado), 11.5, 7.9, 10);
    papel.ImprimeLinha("CEP", 16.5, 7.9, 10);
    papel.ImprimeLinha(documento.coluna(coluna::cep), 18, 7.9, 10);
    papel.ImprimeLinha(juridica ? "CNPJ Nº" : "CPF Nº", 2, 8.6, 10);
    papel.ImprimeLinha(documento.coluna(coluna::cpfCnpj), 5, 8.6, 10);
    papel.ImprimeLinha("I.E. Nº", 14.5, 8.6, 10);
    papel.ImprimeLinha(documento.coluna(coluna::inscricao), 16, 8.6, 10);
}

void valorEReferencia(Papel& papel, const LinhaGrade& documento, const std::string& extenso) {
    papel.ImprimeLinha(" VALOR ", 2, 9.3, 10);
    papel.ImprimeLinha("  POR  ", 2, 9.7, 10);
    papel.ImprimeLinha("EXTENSO", 2, 10.1, 10);
    desenhaPedacos(papel, tiraDoValor(extenso), pedaco, 5, {9.3, 9.7, 10.1}, 11);
    papel.ImprimeLinha("Referente a ", 2, 10.8, 10);
    desenhaPedacos(papel, tiraDaReferencia(documento.coluna(coluna::referencia)), pedaco, 5,
                   {10.8, 11.2, 11.6, 12, 12.4}, 11);
}

void assinatura(Papel& papel) {
    papel.risca(2.8, 13.2, 7, 13.2, 2);
    papel.ImprimeLinha(" /          /", 4.2, 13.3, 10);
    papel.ImprimeLinha("DATA RECEBIMENTO", 3.7, 13.7, 10);
    papel.risca(13, 13.2, 19, 13.2, 3);
    papel.ImprimeLinha("ASSINATURA EMPRESA", 14.7, 13.7, 10);
    papel.risca(margemEsquerda, 13.8, margemDireita, 13.8, 10);
}

}  // namespace

void desenhaRecibo(Papel& papel, const Emitente& emitente, const LinhaGrade& documento,
                   const std::string& extenso) {
    desenhaCabecalho(papel, emitente, documento,
                     {.rotuloEmissao = "DATA DE EMISSAO:",
                      .localidade = " - Estado de " + emitente.dados.NM_UF});
    titulo(papel, documento);
    sacado(papel, documento);
    valorEReferencia(papel, documento, extenso);
    assinatura(papel);
}

}  // namespace tarn
