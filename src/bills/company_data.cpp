#include "bills/company_data.h"

#include "common/tax_number.h"
#include "gateway/pega_valor.h"
#include "gateway/xml_document.h"
#include "runtime/runtime_error.h"

namespace tarn {

DadosEmpresa dadosDaEmpresa(const XmlDocument& resposta) {
    const XmlNode linhas = resposta.selectSingleNode("xml/rs:data");
    if (!linhas || linhas.childCount() == 0) {
        throw ErroExecucao(ErroNumero::VariavelObjeto,
                           "os dados da empresa (sel_dados_empresa) não vieram");
    }
    const auto campo = [&linhas](const char* nome) { return pegaTexto(linhas, 0, nome); };
    const bool fisica = pessoaFisica(campo("PES_JUR"));
    return {.DC_LG = campo("DC_LG"),
            .SG_UF = campo("SG_UF"),
            .NM_BRR = campo("NM_BRR"),
            .NM_MUN = campo("NM_MUN"),
            .NM_UF = campo("NM_UF"),
            .NR_LG = campo("NR_LG"),
            .CD_CEP = campo("CD_CEP"),
            .CD_ICR_EST = campo("CD_ICR_EST"),
            .DC_RAZ_SOC_ETB = campo("DC_RAZ_SOC_ETB"),
            .TELEFONE = campo("TELEFONE"),
            .FAX = campo("FAX"),
            .EMAIL = campo("EMAIL"),
            .inscricaoFederal =
                (fisica ? "CPF nº " : "CNPJ nº ") + cpfCnpj(fisica, campo("NR_CGC_CPL"))};
}

}  // namespace tarn
