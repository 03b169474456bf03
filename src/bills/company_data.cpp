#include "bills/company_data.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

#include "common/tax_number.h"
#include "gateway/answer.h"
#include "gateway/pega_valor.h"
#include "runtime/file_names.h"
#include "runtime/runtime_error.h"

namespace tarn {
namespace {

std::optional<Picture> pictureOf(const std::string& folder, const char* file, const char* name) {
    const std::filesystem::path path = pathOf(folder) / file;
    std::error_code failure;
    if (!std::filesystem::is_regular_file(path, failure)) {
        return std::nullopt;
    }
    std::ifstream input(path, std::ios::binary);
    std::string bytes((std::istreambuf_iterator<char>(input)), std::istreambuf_iterator<char>());
    if (!input || bytes.empty()) {
        return std::nullopt;
    }
    return Picture(name, std::move(bytes));
}

}  // namespace

CompanyData companyDataOf(const XmlDocument& answer) {
    if (rowsOf(answer).length() == 0) {
        throw RuntimeError(RuntimeErrorCode::ObjectVariable,
                           "os dados da empresa (sel_dados_empresa) não vieram");
    }
    const XmlNode rowset = rowsetOf(answer);
    const auto field = [&rowset](const char* name) { return PegaValor(rowset, 0, name); };
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

BillPictures loadPictures(const std::string& folder) {
    if (folder.empty()) {
        return {};
    }
    return {.picLogo = pictureOf(folder, "LOGODUPL.jpg", "picLogo"),
            .picVert = pictureOf(folder, "VERTDUPL.jpg", "picVert"),
            .picAss = pictureOf(folder, "ASSEMITENTE.jpg", "picAss")};
}

}  // namespace tarn
