#include "practice/commands/conditions.h"

#include "practice/commands/amounts.h"
#include "runtime/dates.h"
#include "runtime/text.h"

namespace tarn::practice {

Conditions::Conditions(std::string_view sql, std::vector<Bind> binds)
    : sql_(sql), binds_(std::move(binds)) {}

void Conditions::add(std::string_view sql, const Bind& bind) {
    add(sql);
    binds_.push_back(bind);
}

void Conditions::add(std::string_view sql) {
    sql_.append(" AND ").append(sql);
}

void Conditions::addAnyOf(std::string_view expression, const std::vector<std::int64_t>& numbers) {
    if (numbers.empty()) {
        add("1 = 0");
        return;
    }
    std::string sql(expression);
    sql += " IN (";
    for (const std::int64_t number : numbers) {
        sql += sql.back() == '(' ? "?" : ", ?";
        binds_.emplace_back(number);
    }
    add(sql + ')');
}

void Conditions::addExists(std::string_view tables, const Conditions& other) {
    add("EXISTS (SELECT 1 FROM " + std::string(tables) + " WHERE " + other.sql_ + ')');
    binds_.insert(binds_.end(), other.binds_.begin(), other.binds_.end());
    readable_ = readable_ && other.readable_;
}

void Conditions::addDays(std::string_view expression, const Query& query, std::string_view from,
                         std::string_view to) {
    addRange(expression, query, from, to, [](const std::string& text) -> std::optional<Bind> {
        const std::optional<QDate> day = sentDay(text);
        return day ? std::optional(Bind(*day)) : std::nullopt;
    });
}

void Conditions::addNumbers(std::string_view expression, const Query& query, std::string_view from,
                            std::string_view to) {
    addRange(expression, query, from, to, [](const std::string& text) -> std::optional<Bind> {
        const std::optional<std::int64_t> number = wholeNumber(text);
        return number ? std::optional(Bind(*number)) : std::nullopt;
    });
}

void Conditions::addMoney(std::string_view expression, const Query& query, std::string_view from,
                          std::string_view to) {
    addRange(expression, query, from, to, [](const std::string& text) -> std::optional<Bind> {
        const std::optional<std::int64_t> cents = screenMoney(text);
        return cents ? std::optional(Bind(*cents)) : std::nullopt;
    });
}

void Conditions::addQuantities(std::string_view expression, const Query& query,
                               std::string_view from, std::string_view to) {
    addRange(expression, query, from, to, [](const std::string& text) -> std::optional<Bind> {
        const std::optional<std::int64_t> thousandths = screenQuantity(text);
        return thousandths ? std::optional(Bind(*thousandths)) : std::nullopt;
    });
}

void Conditions::addRange(std::string_view expression, const Query& query, std::string_view from,
                          std::string_view to, Reading read) {
    addEnd(std::string(expression) + " >= ?", query.value(from), read);
    addEnd(std::string(expression) + " <= ?", query.value(to), read);
}

void Conditions::addEnd(const std::string& sql, const std::string& text, Reading read) {
    if (trimBlanks(text).empty()) {
        return;
    }
    if (const std::optional<Bind> end = read(text)) {
        add(sql, *end);
    } else {
        readable_ = false;
    }
}

std::optional<std::vector<std::int64_t>> numberList(std::string_view text) {
    std::vector<std::int64_t> numbers;
    for (;;) {
        const std::size_t comma = text.find(',');
        const std::optional<std::int64_t> number = wholeNumber(text.substr(0, comma));
        if (!number) {
            return std::nullopt;
        }
        numbers.push_back(*number);
        if (comma == std::string_view::npos) {
            return numbers;
        }
        text = text.substr(comma + 1);
    }
}

std::optional<QDate> sentDay(std::string_view text) {
    const std::optional<Date> date = parseStrictDate(trimBlanks(text));
    return date ? std::optional(QDate(date->year, date->month, date->day)) : std::nullopt;
}

}  // namespace tarn::practice
