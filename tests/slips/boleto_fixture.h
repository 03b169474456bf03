// Documents and portfolios of the slip tests.
#pragma once

#include <string>
#include <vector>

#include "slips/carteira_cobranca.h"
#include "slips/documento_boleto.h"

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

// A bill of bank 1016, every cell filled as the search would.
inline DocumentoBoleto documento(const std::string& numero = "4567/1") {
    DocumentoBoleto d;
    d[ColunaBoleto::Filial] = "SP";
    d[ColunaBoleto::Vencimento] = "10/04/2012";
    d[ColunaBoleto::TipoDocumento] = "DUPLICATA";
    d[ColunaBoleto::NumeroDocumento] = numero;
    d[ColunaBoleto::Cliente] = "JOSÉ & FILHOS";
    d[ColunaBoleto::Emissao] = "05/03/2012";
    d[ColunaBoleto::Endereco] = "RUA DO COMÉRCIO, 100";
    d[ColunaBoleto::Valor] = "1.234,50";
    d[ColunaBoleto::Cep] = "01310-100";
    d[ColunaBoleto::Municipio] = "SÃO PAULO";
    d[ColunaBoleto::Estado] = "SP";
    d[ColunaBoleto::CnpjCpf] = "12.345.678/0001-95";
    d[ColunaBoleto::InscricaoEstadual] = "110.042.490.114";
    d[ColunaBoleto::TipoPessoa] = "J";
    d[ColunaBoleto::Tabela] = "DOCTO_COBRANCA";
    d[ColunaBoleto::ReferenciaCobranca] = "NAO RECEBER APOS 30 DIAS";
    d[ColunaBoleto::TaxaJuros] = "0,03";
    d[ColunaBoleto::Multa] = "2,50";
    d[ColunaBoleto::JurosAoDia] = "0,42";
    d[ColunaBoleto::OutrasDespesas] = "7.50";
    d[ColunaBoleto::Instrucao] = "NAO RECEBER APOS 30 DIAS";
    d[ColunaBoleto::Estabelecimento] = "3381";
    d[ColunaBoleto::IdTipoDocumento] = "201";
    d[ColunaBoleto::Agencia] = "1123";
    d[ColunaBoleto::Banco] = "1016";
    d[ColunaBoleto::CodigoExterno] = "C-77";
    d[ColunaBoleto::NotaFiscal] = "4567";
    return d;
}

inline DocumentoBoleto recebivel(const std::string& numero, const std::string& controle) {
    DocumentoBoleto d = documento(numero);
    d[ColunaBoleto::Tabela] = "DOCTO_RECEBER";
    d[ColunaBoleto::NumeroControle] = controle;
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
