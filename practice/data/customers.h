// The customers of a company: those that its orders name, and many more drawn by
// seed.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "practice/data/companies.h"
#include "practice/data/dice.h"
#include "practice/database/database.h"

namespace tarn::practice {

// What the rest of the data needs of a customer that stands in the database.
struct PracticeCustomer {
    int id = 0;
    std::string name = {};
    std::string street = {};  // without its number
    std::string number = {};  // "0": none
    std::optional<std::string> complement = {};
    std::string district = {};
    std::string postalCode = {};
    int city = 0;
};

// In the order of their numbers; those of the orders' table come first.
std::vector<PracticeCustomer> insertCustomers(Database& database, const CompanyRow& company,
                                              Dice& dice);

}  // namespace tarn::practice
