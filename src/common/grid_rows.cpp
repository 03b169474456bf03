#include "common/grid_rows.h"

#include "common/tax_number.h"
#include "gateway/answer.h"
#include "runtime/mask.h"
#include "runtime/numbers.h"

namespace tarn {
namespace {

constexpr NumberMask amountMask{"###,##0.00"};
constexpr NumberMask quantityMask{"###,###,###,##0.000"};

bool ofNaturalPerson(const XmlAttributes& row) {
    return isNaturalPerson(row.textOf("PES_JUR"));
}

bool isReceivable(const XmlAttributes& row) {
    return row.textOf("TIPO_DOCTO") == "DOCTO_RECEBER";
}

std::string cellOf(const XmlAttributes& row, const GridColumn& column) {
    if (column.treatment == Treatment::PersonKind) {
        return ofNaturalPerson(row) ? "F" : "J";
    }
    if (column.attribute.empty()) {
        return {};
    }
    const XmlAttribute attribute = row.getNamedItem(column.attribute);
    if (!attribute) {
        return {};
    }
    const std::string_view text = attribute.text();
    switch (column.treatment) {
        case Treatment::Amount:
            return formatNumber(readPoint(text), amountMask);
        case Treatment::Quantity:
            return formatNumber(readPoint(text), quantityMask);
        case Treatment::CpfCnpj:
            return cpfCnpj(ofNaturalPerson(row), text);
        case Treatment::ReceivableOnly:
            return std::string(isReceivable(row) ? text : std::string_view());
        case Treatment::NotReceivableOnly:
            return std::string(isReceivable(row) ? std::string_view() : text);
        case Treatment::Tick:
        case Treatment::TickAlone:
        case Treatment::PersonKind:
        case Treatment::Text:
        case Treatment::Number:
            break;
    }
    return std::string(text);
}

GridRow rowOf(const XmlNode& element, std::span<const GridColumn> columns) {
    const XmlAttributes attributes = element.attributes();
    GridRow row;
    row.cells.reserve(columns.size());
    for (const GridColumn& column : columns) {
        row.cells.push_back(cellOf(attributes, column));
    }
    return row;
}

}  // namespace

std::vector<GridRow> gridRows(const XmlDocument& answer, std::span<const GridColumn> columns) {
    const XmlNodeList elements = rowsOf(answer);
    std::vector<GridRow> rows;
    rows.reserve(elements.length());
    for (const XmlNode element : elements) {
        rows.push_back(rowOf(element, columns));
    }
    return rows;
}

}  // namespace tarn
