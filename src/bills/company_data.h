// The company whose name and address head each page, and the three pictures of a page.
#pragma once

#include <optional>
#include <string>

#include "platform/printer.h"

namespace tarn {

class XmlDocument;

struct CompanyData {
    std::string DC_LG;
    std::string SG_UF;
    std::string NM_BRR;
    std::string NM_MUN;
    std::string NM_UF;
    std::string NR_LG;  // read, but no page prints it
    std::string CD_CEP;
    std::string CD_ICR_EST;
    std::string DC_RAZ_SOC_ETB;
    std::string TELEFONE;
    std::string FAX;
    std::string EMAIL;
    std::string federalNumber;  // "CPF nº " or "CNPJ nº " and the masked number
};

// The first row of the answer; an absent field is empty. ObjectVariable when there is
// no row, or a field is there in another case of letters only.
CompanyData companyDataOf(const XmlDocument& answer);

// Without its file a picture is nothing, and the page has none there.
struct BillPictures {
    std::optional<Picture> picLogo;
    std::optional<Picture> picVert;
    std::optional<Picture> picAss;
};

// LOGODUPL.jpg, VERTDUPL.jpg and ASSEMITENTE.jpg of that folder. A file that can't be
// read is no failure.
BillPictures loadPictures(const std::string& folder);

}  // namespace tarn
