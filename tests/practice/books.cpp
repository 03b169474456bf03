#include "tests/practice/books.h"

namespace tarn::practice::test {

std::map<std::string, std::string> twoColumns(Database& database, const std::string& sql) {
    std::map<std::string, std::string> values;
    Rows rows = database.select(sql);
    while (rows.next()) {
        values.emplace(rows.text(0), rows.text(1));
    }
    return values;
}

std::multiset<std::string> oneColumn(Database& database, const std::string& sql) {
    std::multiset<std::string> values;
    Rows rows = database.select(sql);
    while (rows.next()) {
        values.insert(rows.text(0));
    }
    return values;
}

std::int64_t number(Database& database, const std::string& sql) {
    Rows rows = database.select(sql);
    return rows.next() ? rows.integer(0) : -1;
}

// Each product's stock and what the notes that stand have taken from it.
std::map<std::string, std::string> stockAndTaken(Database& database) {
    return twoColumns(
        database,
        "SELECT s.product_id, s.quantity + COALESCE((SELECT SUM(CASE o.entry WHEN 1 THEN"
        " -i.quantity ELSE i.quantity END) FROM order_item i"
        " JOIN billing_order o ON o.id = i.order_id JOIN note n ON n.order_id = o.id"
        " WHERE n.cancelled = 0 AND i.product_id = s.product_id"
        " AND n.establishment_id = s.establishment_id), 0)"
        " FROM stock s WHERE s.establishment_id = " +
            std::string(busyPlaceQuery));
}

std::int64_t numbersLeft(Database& database) {
    return number(database, "SELECT SUM(next_number) FROM series WHERE establishment_id = " +
                                std::string(busyPlaceQuery));
}

}  // namespace tarn::practice::test
