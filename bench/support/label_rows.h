// Labels and their sender as the server writes them.
#pragma once

#include <string>

namespace tarn::bench {

// Every attribute of a row, used or not.
inline std::string labelsOf(int count) {
    std::string rows;
    for (int i = 1; i <= count; ++i) {
        const std::string n = std::to_string(i);
        rows.append("<z:row SEQUENCIAL='").append(n).append("' NOME='COMÉRCIO DE PEÇAS ").append(n);
        rows.append(" LTDA' ENDERECO='AVENIDA BRASIL, ").append(n);
        rows.append("' SOMENTE_ENDERECO='AVENIDA BRASIL' NUMERO='").append(n);
        rows.append(
            "' COMPLEMENTO='GALPÃO 2 SALA 34' BAIRRO='JARDIM AMÉRICA' MUNICIPIO='SÃO PAULO' "
            "UF='SP' PAIS='BRASIL' CEP='01310-100' CODIGO='");
        rows.append(n).append("'/>");
    }
    return rows;
}

inline constexpr const char* senderRow =
    "<z:row NOME='DISTRIBUIDORA SÃO JORGE LTDA' ENDERECO='AV. DAS NAÇÕES' BAIRRO='CENTRO' "
    "MUNICIPIO='SÃO PAULO' UF='SP' CEP='01310-000' DESCRICAO='LOJA' NUMERO='2000'/>";

}  // namespace tarn::bench
