#include "practice/commands/fields.h"

#include "practice/commands/amounts.h"

namespace tarn::practice {
namespace {

std::optional<std::string> fieldText(const Rows& rows, int column, Format format) {
    if (rows.isNull(column)) {
        return std::nullopt;
    }
    switch (format) {
        case Format::Money:
            return moneyText(rows.integer(column));
        case Format::Quantity:
            return quantityText(rows.integer(column));
        case Format::Date:
            return dayText(rows.date(column));
        case Format::Text:
            break;
    }
    return rows.text(column);
}

}  // namespace

std::string dayText(QDate date) {
    return date.toString("dd/MM/yyyy").toStdString();
}

std::string selectList(std::span<const Field> fields) {
    std::string list;
    for (const Field& field : fields) {
        list += list.empty() ? "" : ", ";
        list += field.column;
    }
    return list;
}

void setFields(Element& element, const Rows& rows, std::span<const Field> fields, int first) {
    for (const Field& field : fields) {
        element.set(field.name, fieldText(rows, first++, field.format));
    }
}

Rowset readRowset(Database& database, std::span<const Field> fields, std::string_view rest,
                  const std::vector<Bind>& binds) {
    Rowset rowset;
    for (const Field& field : fields) {
        rowset.columns.emplace_back(field.name);
    }
    Rows rows = database.select("SELECT " + selectList(fields) + ' ' + std::string(rest), binds);
    while (rows.next()) {
        auto& values = rowset.rows.emplace_back();
        int column = 0;
        for (const Field& field : fields) {
            values.push_back(fieldText(rows, column++, field.format));
        }
    }
    return rowset;
}

}  // namespace tarn::practice
