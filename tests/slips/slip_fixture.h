// Documents and portfolios of the slip tests.
#pragma once

#include <string>
#include <vector>

#include "slips/portfolio.h"
#include "slips/slip_search.h"

namespace tarn {

inline std::string b(std::size_t blanks) {
    return std::string(blanks, ' ');
}

inline const CarteiraCobranca carteira57{.ID_CRT_COB = "5",
                                         .ID_PES_BAN = "1016",
                                         .NR_CRT_CNAB = "57",
                                         .CD_AGE_BAN_CNAB = "1123",
                                         .NR_CCOR_CNAB = "456789"};
inline const CarteiraCobranca carteira101{.ID_CRT_COB = "6",
                                          .ID_PES_BAN = "1084",
                                          .NR_CRT_CNAB = "101",
                                          .CD_AGE_BAN_CNAB = "",
                                          .NR_CCOR_CNAB = ""};

// A row whose cells are all empty.
inline LinhaGrade semNada() {
    return {.celulas = std::vector<std::string>(colunasBoleto)};
}

// A bill of bank 1016.
inline LinhaGrade documento(const std::string& numero = "4567/1") {
    LinhaGrade d = semNada();
    d.coluna(coluna_boleto::vencimento) = "10/04/2012";
    d.coluna(coluna_boleto::numero) = numero;
    d.coluna(coluna_boleto::cliente) = "JOSÉ & FILHOS";
    d.coluna(coluna_boleto::emissao) = "05/03/2012";
    d.coluna(coluna_boleto::endereco) = "RUA DO COMÉRCIO, 100";
    d.coluna(coluna_boleto::valor) = "1.234,50";
    d.coluna(coluna_boleto::cep) = "01310-100";
    d.coluna(coluna_boleto::municipio) = "SÃO PAULO";
    d.coluna(coluna_boleto::estado) = "SP";
    d.coluna(coluna_boleto::cpfCnpj) = "12.345.678/0001-95";
    d.coluna(coluna_boleto::inscricao) = "110.042.490.114";
    d.coluna(coluna_boleto::tabela) = "DOCTO_COBRANCA";
    d.coluna(coluna_boleto::multa) = "2,50";
    d.coluna(coluna_boleto::jurosAoDia) = "0,42";
    d.coluna(coluna_boleto::instrucao) = "NAO RECEBER APOS 30 DIAS";
    d.coluna(coluna_boleto::estabelecimento) = "3381";
    d.coluna(coluna_boleto::tipoDocumento) = "201";
    d.coluna(coluna_boleto::banco) = "1016";
    d.coluna(coluna_boleto::codigoExterno) = "C-77";
    return d;
}

inline LinhaGrade recebivel(const std::string& numero, const std::string& controle) {
    LinhaGrade d = documento(numero);
    d.coluna(coluna_boleto::tabela) = "DOCTO_RECEBER";
    d.coluna(coluna_boleto::numeroControle) = controle;
    return d;
}

// The slip of `documento` number 1234 in wallet 57, as it leaves in windows-1252.
inline std::vector<std::string> linhasCarteira57() {
    return {"  \r\n",
            b(101) + "10/04/2012      \r\n\r\n\r\n",
            " 05/03/2012" + b(4) + b(3) + "4567/1" + b(24) + "\r\n",
            b(112) + b(8) + "1.234,50 \r\n\r\n",
            " NAO RECEBER APOS 30 DIAS\r\n",
            "  \r\n",
            "  \r\n",
            "  \r\n",
            " COBRAR MULTA DE 2,00% + JUROS DE 0,42 AO DIA\r\n",
            " NOSSO NUMERO: 0000000001234/7   CODIGO CLIENTE: C-77\r\n\r\n",
            "    JOS\xC9 & FILHOS" + b(41) + b(42) + "12.345.678/0001-95" + b(31) + "\r\n",
            " RUA DO COM\xC9RCIO, 100" + b(34) + b(45) + "I.E. 110.042.490.114     \r\n",
            " S\xC3O PAULO - SP   01310-100" + b(44) + "\r\n",
            "  \r\n\r\n\r\n\r\n\r\n\r\n\r\n"};
}

// The slip of `documento` number 1234567 in any other wallet.
inline std::vector<std::string> linhasSeteDigitos() {
    return {" \r\n",
            " ATE O VENCIMENTO, PREFERENCIALMENTE NO SANTANDER\r\n",
            " APOS O VENCIMENTO, SOMENTE NO SANTANDER" + b(45) + "10/04/2012      \r\n\r\n\r\n",
            " 05/03/2012" + b(4) + b(1) + "4567/1" + b(24) + "\r\n",
            b(91) + b(8) + "1.234,50 \r\n\r\n",
            " NAO RECEBER APOS 30 DIAS\r\n",
            "  \r\n",
            "  \r\n",
            "  \r\n",
            " COBRAR MULTA DE 2,00% + JUROS DE\r\n",
            " 0,42 AO DIA\r\n\r\n",
            "    JOS\xC9 & FILHOS" + b(47) + b(10) + "CNPJ/CPF 12.345.678/0001-95" + b(31) + "\r\n",
            "    RUA DO COM\xC9RCIO, 100" + b(49) + " I.E. 110.042.490.114     \r\n",
            "    S\xC3O PAULO - SP   01310-100" + b(34) + b(10) + "N.N.  1234567-9\r\n",
            " \r\n\r\n\r\n\r\n\r\n\r\n"};
}

}  // namespace tarn
