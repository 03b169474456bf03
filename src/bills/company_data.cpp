#include "bills/company_data.h"

#include "common/tax_number.h"
#include "gateway/pega_valor.h"
#include "gateway/xml_document.h"
#include "runtime/runtime_error.h"

namespace tarn {

CompanyData companyDataOf(const XmlDocument& answer) {
    const XmlNode lines = answer.selectSingleNode("xml/rs:data");
    if (!lines || lines.childCount() == 0) {
        throw RuntimeError(RuntimeErrorCode::ObjectVariable,
                           "os dados da empresa (sel_dados_empresa) não vieram");
    }
    const auto field = [&lines](const char* name) { return textAttribute(lines, 0, name); };
    const bool naturalPerson = isNaturalPerson(field("PES_JUR"));
    return {.DC_LG = field("DC_LG"),
            .SG_UF = field("SG_UF"),
            .NM_BRR = field("NM_BRR"),
            .NM_MUN = field("NM_MUN"),
            .NM_UF = field("NM_UF"),
            .NR_LG = field("NR_LG"),
            .CD_CEP = field("CD_CEP"),
            .CD_ICR_EST = field("CD_ICR_EST"),
            .DC_RAZ_SOC_ETB = field("DC_RAZ_SOC_ETB"),
            .TELEFONE = field("TELEFONE"),
            .FAX = field("FAX"),
            .EMAIL = field("EMAIL"),
            .federalNumber = (naturalPerson ? "CPF nº " : "CNPJ nº ") +
                             cpfCnpj(naturalPerson, field("NR_CGC_CPL"))};
}

}  // namespace tarn
