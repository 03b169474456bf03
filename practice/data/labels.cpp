#include "practice/data/labels.h"

#include <array>

#include "practice/commands/amounts.h"
#include "practice/data/companies.h"
#include "practice/data/names.h"
#include "practice/data/orders.h"
#include "practice/data/places.h"
#include "practice/data/tables.h"

namespace tarn::practice {
namespace {

constexpr int manyLabels = 600;  // of its first reason

struct ReasonRow {
    const char* kind;  // C clients, F suppliers
    const char* description;
    int labels;
    int firstSequence;
};

// More than one page of the sheet of 30, a page of its own, none, one more than a
// row of four with sequences beyond 16 bits.
constexpr std::array reasons = {
    ReasonRow{"C", "MALA DIRETA DE NATAL", 40, 1}, ReasonRow{"C", "COBRANÇA", 31, 1},
    ReasonRow{"C", "ENVIO DE CATÁLOGO", 1, 1},     ReasonRow{"C", "ANIVERSARIANTES DO MÊS", 0, 1},
    ReasonRow{"C", "NOTA DEVOLVIDA", 5, 32766},    ReasonRow{"F", "PEDIDO DE COTAÇÃO", 30, 1},
    ReasonRow{"F", "CONVITE PARA A FEIRA", 9, 1}};

const char* countryOf(const StateRow& state) {
    for (const CountryRow& row : countryRows()) {
        if (row.id == state.country) {
            return row.name;
        }
    }
    return "";
}

PracticeCustomer drawnSupplier(int number, Dice& dice) {
    PracticeCustomer supplier{.id = number, .name = drawnCompanyName(dice)};
    const DrawnAddress address = drawnAddress(dice);
    supplier.street = address.street;
    supplier.number = address.number;
    supplier.complement = address.complement;
    supplier.district = address.district;
    supplier.postalCode = address.postalCode;
    supplier.city = address.city;
    return supplier;
}

void insertLabel(Database& database, int company, int reason, int sequence, QDate queued,
                 const PracticeCustomer& to) {
    const TownRow& town = townRows()[static_cast<std::size_t>(to.city) - 1];
    const StateRow& state = stateOf(town);
    database.insert("label",
                    "company_id, reason_id, sequence, queued_on, name, address, street,"
                    " street_number, complement, district, town, state, postal_code, code, country",
                    {company, reason, sequence, queued, to.name, addressLine(to.street, to.number),
                     to.street, to.number, to.complement, to.district, town.name, state.code,
                     to.postalCode, std::to_string(to.id), countryOf(state)});
}

}  // namespace

void insertLabels(Database& database, const CompanyRow& company,
                  std::span<const PracticeCustomer> customers, QDate today, Dice& dice) {
    int reason = 0;
    for (const ReasonRow& row : reasons) {
        ++reason;
        database.insert("label_reason", "company_id, id, kind, description",
                        {company.id, reason, row.kind, row.description});
        const bool many = company.id == manyCompany && reason == 1;
        for (int i = 0; i < (many ? manyLabels : row.labels); ++i) {
            const QDate queued = today.addDays(-dice.below(5));
            insertLabel(database, company.id, reason, row.firstSequence + i, queued,
                        *row.kind == 'F'
                            ? drawnSupplier(9001 + i, dice)
                            : customers[static_cast<std::size_t>(i) % customers.size()]);
        }
    }
}

void insertSales(Database& database, const CompanyRow& company,
                 std::span<const PracticeCustomer> customers, QDate today, Dice& dice) {
    const int index = companyIndex(company.id);
    for (const PracticeCustomer& customer : customers) {
        for (int left = dice.below(4); left > 0; --left) {
            const int row = dice.below(static_cast<int>(productRows().size()));
            const std::int64_t quantity = std::int64_t{dice.between(1, 60)} * 1000;
            const int price = productRows()[static_cast<std::size_t>(row)].unitPrice;
            database.insert("sale", "customer_id, product_id, sold_on, quantity, amount",
                            {customer.id, productId(index, row), today.addDays(-dice.below(365)),
                             quantity, lineTotal(price, quantity)});
        }
    }
}

}  // namespace tarn::practice
