#include "common/grid_rows.h"

#include "common/tax_number.h"
#include "gateway/xml_document.h"
#include "runtime/mask.h"
#include "runtime/numbers.h"

namespace tarn {
namespace {

constexpr NumberMask amountMask{"###,##0.00"};

std::string_view textOf(const XmlAttributes& attributes, std::string_view name) {
    const XmlAttribute attribute = attributes.getNamedItem(name);
    return attribute ? attribute.text() : std::string_view();
}

// What a row's treatments look at.
struct RowRead {
    XmlAttributes attributes;
    bool naturalPerson;
    bool receivable;
};

std::string cell(const RowRead& line, const GridField& field) {
    if (field.treatment == Treatment::PersonKind) {
        return line.naturalPerson ? "F" : "J";
    }
    const XmlAttribute attribute = line.attributes.getNamedItem(field.name);
    if (!attribute) {
        return {};
    }
    const std::string_view text = attribute.text();
    switch (field.treatment) {
        case Treatment::Amount:
            return formatNumber(readPoint(text), amountMask);
        case Treatment::CpfCnpj:
            return cpfCnpj(line.naturalPerson, text);
        case Treatment::ReceivableOnly:
            return std::string(line.receivable ? text : std::string_view());
        case Treatment::NotReceivableOnly:
            return std::string(line.receivable ? std::string_view() : text);
        case Treatment::PersonKind:
        case Treatment::Text:
            break;
    }
    return std::string(text);
}

GridRow rowOf(const XmlNode& node, std::span<const GridField> fields) {
    const XmlAttributes attributes = node.attributes();
    const RowRead read{.attributes = attributes,
                       .naturalPerson = isNaturalPerson(textOf(attributes, "PES_JUR")),
                       .receivable = textOf(attributes, "TIPO_DOCTO") == "DOCTO_RECEBER"};
    GridRow line;
    line.cells.reserve(fields.size());
    for (const GridField& field : fields) {
        line.cells.push_back(cell(read, field));
    }
    return line;
}

}  // namespace

std::vector<GridRow> rowsOf(const XmlDocument& answer, std::span<const GridField> fields) {
    std::vector<GridRow> lines;
    const XmlNode data = answer.selectSingleNode("xml/rs:data");
    const std::size_t count = data ? data.childCount() : 0;
    lines.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        lines.push_back(rowOf(data.child(i), fields));
    }
    return lines;
}

}  // namespace tarn
