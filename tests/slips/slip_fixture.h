// Documents and portfolios of the slip tests.
#pragma once

#include <string>
#include <vector>

#include "slips/portfolio.h"
#include "slips/slip_search.h"

namespace tarn::test {

inline std::string b(std::size_t blanks) {
    return std::string(blanks, ' ');
}

inline const Portfolio isWallet57{.ID_CRT_COB = "5",
                                  .ID_PES_BAN = "1016",
                                  .NR_CRT_CNAB = "57",
                                  .CD_AGE_BAN_CNAB = "1123",
                                  .NR_CCOR_CNAB = "456789"};
inline const Portfolio wallet101{.ID_CRT_COB = "6",
                                 .ID_PES_BAN = "1084",
                                 .NR_CRT_CNAB = "101",
                                 .CD_AGE_BAN_CNAB = "",
                                 .NR_CCOR_CNAB = ""};

// A row whose cells are all empty.
inline GridRow emptyDocument() {
    return {.cells = std::vector<std::string>(slipGrid().size())};
}

// A bill of bank 1016.
inline GridRow document(const std::string& number = "4567/1") {
    GridRow d = emptyDocument();
    d.text(SlipColumn::Due) = "10/04/2012";
    d.text(SlipColumn::Number) = number;
    d.text(SlipColumn::Customer) = "JOSÉ & FILHOS";
    d.text(SlipColumn::Issued) = "05/03/2012";
    d.text(SlipColumn::Address) = "RUA DO COMÉRCIO, 100";
    d.text(SlipColumn::Value) = "1.234,50";
    d.text(SlipColumn::PostalCode) = "01310-100";
    d.text(SlipColumn::Town) = "SÃO PAULO";
    d.text(SlipColumn::State) = "SP";
    d.text(SlipColumn::CpfCnpj) = "12.345.678/0001-95";
    d.text(SlipColumn::Registration) = "110.042.490.114";
    d.text(SlipColumn::Table) = "DOCTO_COBRANCA";
    d.text(SlipColumn::Fine) = "2,50";
    d.text(SlipColumn::DailyInterest) = "0,42";
    d.text(SlipColumn::Instruction) = "NAO RECEBER APOS 30 DIAS";
    d.text(SlipColumn::Establishment) = "3381";
    d.text(SlipColumn::DocumentKind) = "201";
    d.text(SlipColumn::Bank) = "1016";
    d.text(SlipColumn::ExternalCode) = "C-77";
    return d;
}

inline GridRow receivable(const std::string& number, const std::string& control) {
    GridRow d = document(number);
    d.text(SlipColumn::Table) = "DOCTO_RECEBER";
    d.text(SlipColumn::ControlNumber) = control;
    return d;
}

// The slip of `document` number 1234 in wallet 57, as it leaves in windows-1252.
inline std::vector<std::string> wallet57Lines() {
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

// The slip of `document` number 1234567 in any other wallet.
inline std::vector<std::string> sevenDigitLines() {
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

}  // namespace tarn::test
