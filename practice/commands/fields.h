// Wire fields as data: the name on the wire, the column it comes from, its form.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "practice/commands/answer.h"
#include "practice/database/database.h"

namespace tarn::practice {

enum class Format {
    Text,
    Money,     // cents, "1234.50"; rates in hundredths likewise
    Quantity,  // thousandths, "12.5"
    Date       // dd/mm/yyyy
};

struct Field {
    std::string_view name;
    std::string_view column;  // any expression of the query's tables
    Format format = Format::Text;
};

std::string dayText(QDate date);  // dd/mm/yyyy

std::string selectList(std::span<const Field> fields);

// Sets the fields of the current row, from column `first` on; a null gives none.
void setFields(Element& element, const Rows& rows, std::span<const Field> fields, int first = 0);

// "SELECT fields" and the rest of the statement, from FROM on.
Rowset readRowset(Database& database, std::span<const Field> fields, std::string_view rest,
                  const std::vector<Bind>& binds);

}  // namespace tarn::practice
