// Countries, states and towns of the practice data, each with the place in which
// its towns' addresses lie.
#pragma once

#include <span>
#include <string_view>

#include "practice/database/database.h"

namespace tarn::practice {

struct CountryRow {
    int id;
    const char* name;
};

struct StateRow {
    int country;  // id
    const char* code;
    const char* name;
};

// States count from 1 in their table, towns too: that is their number on the wire.
struct TownRow {
    int state;
    const char* name;
    int postalCode;  // of its first streets; abroad as its own post writes it
};

std::span<const CountryRow> countryRows();
std::span<const TownRow> townRows();

const StateRow& stateOf(const TownRow& town);
int cityId(std::string_view town, std::string_view stateCode);  // 0: not in the table

void insertPlaces(Database& database);

}  // namespace tarn::practice
