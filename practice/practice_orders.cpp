#include "practice/practice_orders.h"

#include <array>
#include <random>
#include <string_view>
#include <vector>

#include "practice/amounts.h"
#include "practice/order_scenarios.h"
#include "practice/practice_tables.h"

namespace tarn::practice {
namespace {

constexpr int kFirstOrder = 45001;
constexpr int kOrdersApart = 100;  // between the first orders of two establishments
constexpr int kItemsOverForm = 4;
constexpr int kThousandth = 1000;
constexpr int kScarceStock = 3;  // units of the product that the stock lacks
constexpr int kScarceOrdered = 12;

constexpr std::array kSalesmen = {"RÔMULO GONÇALVES", "TÂNIA MARIA DE SOUZA", "VENDA DIRETA",
                                  "JOÃO PAULO D'ÂNGELO E ASSOCIADOS REPRESENTAÇÕES"};

// Rows of the products' table. The last product is the scarce one and stands in
// no order but the one that lacks it.
constexpr std::array kByWeight = {6, 7, 16, 11};
constexpr std::array kWithheld = {4, 5, 14};
constexpr std::array kEveryLegalText = {3, 4, 8, 11, 12, 0};

class Dice {
public:
    explicit Dice(std::uint64_t seed) : engine_(seed) {}
    // 0 to count - 1. The engine's sequence is the same on every machine.
    int below(int count) { return static_cast<int>(engine_() % static_cast<std::uint64_t>(count)); }

private:
    std::mt19937_64 engine_;
};

struct Place {
    int companyIndex = 0;
    const EstablishmentRow* establishment = nullptr;
};

struct Item {
    int product = 0;  // row of the products' table
    std::int64_t quantity = 0;
    std::int64_t price = 0;
};

std::vector<int> choicesOf(Choice choice) {
    switch (choice) {
        case Choice::ByWeight:
            return {kByWeight.begin(), kByWeight.end()};
        case Choice::Withheld:
            return {kWithheld.begin(), kWithheld.end()};
        case Choice::EveryLegalText:
            return {kEveryLegalText.begin(), kEveryLegalText.end()};
        case Choice::Any:
            break;
    }
    std::vector<int> all;
    for (int row = 0; row + 1 < static_cast<int>(productRows().size()); ++row) {
        all.push_back(row);
    }
    return all;
}

int itemCount(const Scenario& scenario, const Place& place) {
    if (scenario.items == kFullForm) {
        return place.establishment->itemLines;
    }
    return scenario.items == kOverFullForm ? place.establishment->itemLines + kItemsOverForm
                                           : scenario.items;
}

// Quarters of a unit go with prices in steps of 4 cents, so that every line
// total is whole cents.
std::vector<Item> drawItems(const Scenario& scenario, const Place& place, Dice& dice) {
    const std::vector<int> choices = choicesOf(scenario.choice);
    const int first = dice.below(static_cast<int>(choices.size()));
    std::vector<Item> items;
    for (int i = 0; i < itemCount(scenario, place); ++i) {
        const auto index = static_cast<std::size_t>(first + i) % choices.size();
        const ProductRow& product = productRows()[static_cast<std::size_t>(choices[index])];
        Item item{choices[index], 0, product.unitPrice / 4 * 4 + 4 * dice.below(25)};
        item.quantity =
            product.byWeight ? (1 + dice.below(200)) * 250 : (1 + dice.below(40)) * kThousandth;
        items.push_back(item);
    }
    if (scenario.lacksStock) {
        items.front().product = static_cast<int>(productRows().size()) - 1;
        items.front().quantity = kScarceOrdered * kThousandth;
        items.front().price = productRows().back().unitPrice;
    }
    return items;
}

struct Operation {
    const char* name;
    const char* cfop;
    const char* kind;
    const char* kindText;
    const char* series;
};

Operation operationOf(const Scenario& scenario, const Place& place) {
    if (scenario.entry) {
        return {"DEVOLUÇÃO DE VENDA DE MERCADORIA", "1202", "D", "Devolução de venda", "2"};
    }
    const CustomerRow& customer = customerRows()[static_cast<std::size_t>(scenario.customer)];
    const bool sameState = std::string_view(customer.address.state) == place.establishment->state;
    return {"VENDA DE MERCADORIA ADQUIRIDA DE TERCEIROS", sameState ? "5102" : "6102", "S",
            "Venda de mercadoria", "1"};
}

std::int64_t netWeight(const std::vector<Item>& items) {
    std::int64_t weight = 0;
    for (const Item& item : items) {
        const ProductRow& product = productRows()[static_cast<std::size_t>(item.product)];
        weight += scaled(product.unitWeight, item.quantity, kThousandth);
    }
    return weight;
}

void insertItems(Database& database, int order, int companyIndex, const Scenario& scenario,
                 const std::vector<Item>& items) {
    int position = 0;
    for (const Item& item : items) {
        const std::int64_t gross = lineTotal(item.price, item.quantity);
        database.insert(
            "order_item",
            "order_id, position, product_id, quantity, unit_price, discount,"
            " icms_discount",
            {order, ++position, productId(companyIndex, item.product), item.quantity, item.price,
             percentOf(gross, scenario.discountRate), percentOf(gross, scenario.icmsDiscountRate)});
    }
}

void insertOrder(Database& database, int order, const Scenario& scenario, const Place& place,
                 QDate today, Dice& dice) {
    const std::vector<Item> items = drawItems(scenario, place, dice);
    const Operation operation = operationOf(scenario, place);
    const bool carried = scenario.carrier != kNoCarrier;
    const std::int64_t net = netWeight(items);
    const int loadOrder = 7000 + dice.below(900);
    const int sale = 80000 + dice.below(9000);
    const int age = dice.below(5);
    const int packages = (1 + dice.below(12)) * kThousandth;
    const char* salesman = kSalesmen[static_cast<std::size_t>(dice.below(4))];
    database.insert(
        "billing_order",
        "id, establishment_id, state, load_order, customer_id, carrier_id, driver, freight_payer,"
        " note_kind, note_kind_text, series_code, entry, operation, cfop, generated_on,"
        " observation, sale_observation, packages, gross_weight, net_weight, freight, insurance,"
        " expenses, parcels, first_days, step_days, payment_condition, salesman, own_order,"
        " customer_order, control_number",
        {order,
         place.establishment->id,
         "A",
         scenario.loadOrder ? Bind(loadOrder) : Bind(std::nullopt),
         customerId(place.companyIndex, scenario.customer),
         carried ? Bind(carrierId(place.companyIndex, scenario.carrier)) : Bind(std::nullopt),
         scenario.driver,
         carried ? Bind(scenario.freight > 0 ? "1" : "2") : Bind(std::nullopt),
         operation.kind,
         operation.kindText,
         operation.series,
         scenario.entry ? 1 : 0,
         operation.name,
         operation.cfop,
         today.addDays(-age),
         scenario.observation,
         scenario.saleObservation,
         packages,
         scaled(net, 105, 100),
         net,
         scenario.freight,
         scenario.insurance,
         scenario.expenses,
         scenario.parcels,
         scenario.firstDays,
         scenario.stepDays,
         scenario.paymentCondition,
         salesman,
         scenario.ownOrder ? std::to_string(sale) : "0",
         scenario.customerOrder,
         scenario.controlNumber});
    insertItems(database, order, place.companyIndex, scenario, items);
}

void insertSeriesAndStock(Database& database, const Place& place, Dice& dice) {
    const int establishment = place.establishment->id;
    constexpr std::string_view kColumns = "establishment_id, code, description, next_number";
    database.insert(
        "series", kColumns,
        {establishment, "1", "Série 1 - Nota Fiscal de Saída", 1001 + dice.below(8000)});
    database.insert("series", kColumns,
                    {establishment, "2", "Série 2 - Nota Fiscal de Entrada", 1 + dice.below(900)});
    const int count = static_cast<int>(productRows().size());
    for (int row = 0; row < count; ++row) {
        const int units = row + 1 == count ? kScarceStock : 5000 + dice.below(5000);
        database.insert("stock", "establishment_id, product_id, quantity",
                        {establishment, productId(place.companyIndex, row), units * kThousandth});
    }
}

int companyIndexOf(int company) {
    int index = 0;
    for (const CompanyRow& row : companyRows()) {
        if (row.id == company) {
            break;
        }
        ++index;
    }
    return index;
}

}  // namespace

void insertPracticeOrders(Database& database, std::uint64_t seed, QDate today) {
    Dice dice(seed);
    int first = kFirstOrder;
    for (const EstablishmentRow& establishment : establishmentRows()) {
        const Place place{companyIndexOf(establishment.company), &establishment};
        insertSeriesAndStock(database, place, dice);
        int order = first;
        for (const Scenario& scenario : orderScenarios()) {
            insertOrder(database, order++, scenario, place, today, dice);
        }
        first += kOrdersApart;
    }
}

}  // namespace tarn::practice
