// What a practice database says of the work of busy desks.
#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>

#include "practice/database/database.h"

namespace tarn::practice::test {

// The establishment at which busy desks work.
inline constexpr const char* busyPlaceQuery =
    "(SELECT id FROM establishment WHERE company_id = 1361 AND code = 1363)";

std::map<std::string, std::string> twoColumns(Database& database, const std::string& sql);
std::multiset<std::string> oneColumn(Database& database, const std::string& sql);
std::int64_t number(Database& database, const std::string& sql);  // -1: no row

// Each product's stock and what the notes that stand have taken from it: the same whatever
// was billed and cancelled.
std::map<std::string, std::string> stockAndTaken(Database& database);
// The sum of the next numbers of the establishment's series.
std::int64_t numbersLeft(Database& database);

}  // namespace tarn::practice::test
