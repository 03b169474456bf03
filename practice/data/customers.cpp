#include "practice/data/customers.h"

#include "practice/data/companies.h"
#include "practice/data/names.h"
#include "practice/data/orders.h"
#include "practice/data/places.h"
#include "practice/data/tables.h"
#include "practice/data/tax_numbers.h"
#include "practice/database/stored_text.h"

namespace tarn::practice {
namespace {

constexpr int manyCustomers = 900;  // of that company; their numbers end at 999 of its thousand
constexpr int someCustomers = 60;   // of every other one

constexpr std::string_view customerColumns =
    "id, company_id, establishment_id, name, search_name, external_code, natural_person,"
    " tax_number, state_registration, telephone, credit_blocked";
constexpr std::string_view addressColumns =
    "customer_id, kind, street, complement, district, postal_code, town, state, city_id";

// The establishment that serves a customer.
int branchOf(const Branches& branches, int customer) {
    return branches.first + customer % branches.count;
}

void insertGivenAddress(Database& database, int customer, const char* kind, const AddressRow& row) {
    if (row.street != nullptr) {
        database.insert("customer_address", addressColumns,
                        {customer, kind, row.street, row.complement, row.district, row.postalCode,
                         row.town, row.state, cityId(row.town, row.state)});
    }
}

// "RUA X, 45" parts into street and number; a number that is more than digits
// stays in the street.
void takeStreet(PracticeCustomer& customer, const std::string& line) {
    const std::size_t comma = line.rfind(", ");
    const std::string number = comma == std::string::npos ? "" : line.substr(comma + 2);
    const bool digits =
        !number.empty() && number.find_first_not_of("0123456789") == std::string::npos;
    customer.street = digits ? line.substr(0, comma) : line;
    customer.number = digits ? number : "0";
}

PracticeCustomer insertGiven(Database& database, int company, int id, const CustomerRow& row,
                             const Branches& branches) {
    database.insert(
        "customer", customerColumns,
        {id, company, branchOf(branches, id), row.name, searchName(row.name),
         "C" + std::to_string(id), row.naturalPerson ? 1 : 0,
         row.naturalPerson ? personTaxNumber(row.taxBase) : companyTaxNumber(row.taxBase),
         row.stateRegistration, row.telephone, row.creditBlocked ? 1 : 0});
    insertGivenAddress(database, id, "P", row.address);
    insertGivenAddress(database, id, "C", row.billing);
    insertGivenAddress(database, id, "E", row.delivery);
    PracticeCustomer customer{.id = id, .name = row.name};
    takeStreet(customer, row.address.street);
    if (row.address.complement != nullptr) {
        customer.complement = row.address.complement;
    }
    customer.district = row.address.district;
    customer.postalCode = row.address.postalCode;
    customer.city = cityId(row.address.town, row.address.state);
    return customer;
}

void insertDrawnAddress(Database& database, int customer, const char* kind,
                        const DrawnAddress& address) {
    const TownRow& town = townRows()[static_cast<std::size_t>(address.city) - 1];
    database.insert(
        "customer_address", addressColumns,
        {customer, kind, addressLine(address.street, address.number), address.complement,
         address.district, address.postalCode, town.name, stateOf(town).code, address.city});
}

std::string drawnTaxNumber(bool person, Dice& dice) {
    const std::string base = std::to_string(dice.between(10000000, 99999999));
    return person ? personTaxNumber(base + std::to_string(dice.below(10)))
                  : companyTaxNumber(base + "0001");
}

std::string drawnTelephone(Dice& dice) {
    const std::string area = std::to_string(dice.between(11, 99));
    const std::string exchange = std::to_string(dice.between(3000, 3999));
    return '(' + area + ") " + exchange + '-' + std::to_string(dice.between(1000, 9999));
}

PracticeCustomer insertDrawn(Database& database, int company, int id, const Branches& branches,
                             Dice& dice) {
    const bool person = dice.below(4) == 0;
    const std::string name = person ? drawnPersonName(dice) : drawnCompanyName(dice);
    const std::string tax = drawnTaxNumber(person, dice);
    const std::string registration = std::to_string(dice.between(100000000, 999999999));
    const std::string telephone = drawnTelephone(dice);
    database.insert("customer", customerColumns,
                    {id, company, branchOf(branches, id), name, searchName(name),
                     id % 3 == 0 ? Bind(std::nullopt) : Bind("C" + std::to_string(id)),
                     person ? 1 : 0, tax, person ? Bind(std::nullopt) : Bind(registration),
                     id % 10 == 0 ? Bind(std::nullopt) : Bind(telephone), 0});
    const DrawnAddress address = drawnAddress(dice);
    insertDrawnAddress(database, id, "P", address);
    if (id % 7 == 0) {
        insertDrawnAddress(database, id, "C", drawnAddress(dice));
    }
    return {id,
            name,
            address.street,
            address.number,
            address.complement,
            address.district,
            address.postalCode,
            address.city};
}

}  // namespace

std::vector<PracticeCustomer> insertCustomers(Database& database, const CompanyRow& company,
                                              Dice& dice) {
    const int index = companyIndex(company.id);
    const Branches branches = branchesOf(company.id);
    std::vector<PracticeCustomer> customers;
    int row = 0;
    for (const CustomerRow& given : customerRows()) {
        customers.push_back(
            insertGiven(database, company.id, customerId(index, row++), given, branches));
    }
    const int drawn = company.id == manyCompany ? manyCustomers : someCustomers;
    for (int i = 0; i < drawn; ++i) {
        customers.push_back(
            insertDrawn(database, company.id, customerId(index, row++), branches, dice));
    }
    return customers;
}

}  // namespace tarn::practice
