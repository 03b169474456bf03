// The conditions of a search: what a request leaves empty restricts nothing.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "practice/commands/query_text.h"
#include "practice/database/database.h"

namespace tarn::practice {

class Conditions {
public:
    Conditions(std::string_view sql, std::vector<Bind> binds);

    void add(std::string_view sql, const Bind& bind);
    void add(std::string_view sql);
    // `expression` is one of the whole numbers given, of which none matches an empty list.
    void addAnyOf(std::string_view expression, const std::vector<std::int64_t>& numbers);

    // A row of `tables` for which the other conditions hold.
    void addExists(std::string_view tables, const Conditions& other);

    // A range from one key's value to another's, both ends within it. A value that
    // can't be read makes the whole search unreadable.
    void addDays(std::string_view expression, const Query& query, std::string_view from,
                 std::string_view to);
    void addNumbers(std::string_view expression, const Query& query, std::string_view from,
                    std::string_view to);
    void addMoney(std::string_view expression, const Query& query, std::string_view from,
                  std::string_view to);
    void addQuantities(std::string_view expression, const Query& query, std::string_view from,
                       std::string_view to);

    bool readable() const { return readable_; }
    const std::string& sql() const { return sql_; }
    const std::vector<Bind>& binds() const { return binds_; }

private:
    using Reading = std::optional<Bind> (*)(const std::string&);
    void addRange(std::string_view expression, const Query& query, std::string_view from,
                  std::string_view to, Reading read);
    void addEnd(const std::string& sql, const std::string& text, Reading read);

    std::string sql_;
    std::vector<Bind> binds_;
    bool readable_ = true;
};

// Whole numbers separated by commas, blanks around them; nothing for anything else.
std::optional<std::vector<std::int64_t>> numberList(std::string_view text);

// A day as the desk's date fields send it, dd/mm/yyyy.
std::optional<QDate> sentDay(std::string_view text);

}  // namespace tarn::practice
