#include "common/grid_rows.h"

#include "common/tax_number.h"
#include "gateway/xml_document.h"
#include "runtime/mask.h"
#include "runtime/numbers.h"

namespace tarn {
namespace {

constexpr NumberMask amountMask{"###,##0.00"};

std::string_view textOf(const XmlAttributes& attributes, std::string_view nome) {
    const XmlAttribute attribute = attributes.getNamedItem(nome);
    return attribute ? attribute.text() : std::string_view();
}

// What a row's treatments look at.
struct RowRead {
    XmlAttributes attributes;
    bool naturalPerson;
    bool receivable;
};

std::string cell(const RowRead& linha, const GridField& field) {
    if (field.treatment == Treatment::PersonKind) {
        return linha.naturalPerson ? "F" : "J";
    }
    const XmlAttribute attribute = linha.attributes.getNamedItem(field.nome);
    if (!attribute) {
        return {};
    }
    const std::string_view texto = attribute.text();
    switch (field.treatment) {
        case Treatment::Amount:
            return formatNumber(readPoint(texto), amountMask);
        case Treatment::CpfCnpj:
            return cpfCnpj(linha.naturalPerson, texto);
        case Treatment::ReceivableOnly:
            return std::string(linha.receivable ? texto : std::string_view());
        case Treatment::NotReceivableOnly:
            return std::string(linha.receivable ? std::string_view() : texto);
        case Treatment::PersonKind:
        case Treatment::Texto:
            break;
    }
    return std::string(texto);
}

GridRow rowOf(const XmlNode& no, std::span<const GridField> fields) {
    const XmlAttributes attributes = no.attributes();
    const RowRead read{.attributes = attributes,
                       .naturalPerson = isNaturalPerson(textOf(attributes, "PES_JUR")),
                       .receivable = textOf(attributes, "TIPO_DOCTO") == "DOCTO_RECEBER"};
    GridRow linha;
    linha.cells.reserve(fields.size());
    for (const GridField& field : fields) {
        linha.cells.push_back(cell(read, field));
    }
    return linha;
}

}  // namespace

std::vector<GridRow> rowsOf(const XmlDocument& answer, std::span<const GridField> fields) {
    std::vector<GridRow> linhas;
    const XmlNode data = answer.selectSingleNode("xml/rs:data");
    const std::size_t count = data ? data.childCount() : 0;
    linhas.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        linhas.push_back(rowOf(data.child(i), fields));
    }
    return linhas;
}

}  // namespace tarn
