#include "practice/data/orders.h"

#include <array>
#include <string_view>
#include <vector>

#include "practice/commands/amounts.h"
#include "practice/data/companies.h"
#include "practice/data/dice.h"
#include "practice/data/order_scenarios.h"
#include "practice/data/tables.h"

namespace tarn::practice {
namespace {

constexpr int firstOrder = 45001;
constexpr int ordersApart = 100;  // between the first orders of two establishments
constexpr int firstOfLongList = 60001;
constexpr int longListOrders = 300;
constexpr int longListCompany = 1361;
constexpr int longListEstablishment = 1363;
constexpr int itemsOverForm = 4;
constexpr int servicesOverForm = 2;
constexpr int parcelsUnseen = 9;  // where the form shows none
constexpr int thousandth = 1000;
constexpr int scarceStock = 3;  // units of the product that the stock lacks
constexpr int scarceOrdered = 12;

constexpr std::array salesmen = {"RÔMULO GONÇALVES", "TÂNIA MARIA DE SOUZA", "VENDA DIRETA",
                                 "JOÃO PAULO D'ÂNGELO E ASSOCIADOS REPRESENTAÇÕES"};

// Rows of the products' table. The last product is the scarce one and stands in
// no order but the one that lacks it.
constexpr std::array productsByWeight = {6, 7, 16, 11};
constexpr std::array withheld = {4, 5, 14};
constexpr std::array exempt = {11, 12};
constexpr std::array everyLegalText = {3, 4, 8, 11, 12, 0};

struct Place {
    int companyIndex = 0;
    int establishmentId = 0;
    const EstablishmentRow* establishment = nullptr;

    const Form& form() const { return establishment->form; }
};

struct Item {
    int productId = 0;
    std::int64_t quantity = 0;
    std::int64_t price = 0;
    int unitWeight = 0;
};

std::vector<int> choicesOf(Choice choice) {
    switch (choice) {
        case Choice::ByWeight:
            return {productsByWeight.begin(), productsByWeight.end()};
        case Choice::Withheld:
            return {withheld.begin(), withheld.end()};
        case Choice::EveryLegalText:
            return {everyLegalText.begin(), everyLegalText.end()};
        case Choice::Exempt:
            return {exempt.begin(), exempt.end()};
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
    if (scenario.items == fullForm) {
        return place.form().itemLines;
    }
    return scenario.items == overFullForm ? place.form().itemLines + itemsOverForm : scenario.items;
}

int serviceCount(const Scenario& scenario, const Place& place) {
    return scenario.services == overFullForm ? place.form().serviceLines + servicesOverForm
                                             : scenario.services;
}

int parcelCount(const Scenario& scenario, const Place& place) {
    const int limit = place.form().parcelLimit > 0 ? place.form().parcelLimit : parcelsUnseen;
    if (scenario.parcels == fullForm) {
        return limit;
    }
    return scenario.parcels == overFullForm ? limit + 1 : scenario.parcels;
}

// "9 X 30 DIAS" of "# X 30 DIAS" and nine parcels.
std::optional<std::string> paymentCondition(const char* pattern, int parcels) {
    if (pattern == nullptr) {
        return std::nullopt;
    }
    std::string text = pattern;
    if (const std::size_t mark = text.find('#'); mark != std::string::npos) {
        text.replace(mark, 1, std::to_string(parcels));
    }
    return text;
}

bool applies(const Scenario& scenario, const Place& place) {
    switch (scenario.where) {
        case Where::SellsServices:
            return companyRows()[static_cast<std::size_t>(place.companyIndex)].sellsServices;
        case Where::ParcelsInPairs:
            return place.form().parcelsInPairs;
        case Where::TaxCredit:
            return place.form().taxCredit;
        case Where::Everywhere:
            break;
    }
    return true;
}

// Services come first, so that on a form without room for them they take lines
// from the products.
void drawServices(std::vector<Item>& items, int count, const Place& place, Dice& dice) {
    const int all = static_cast<int>(serviceRows().size());
    for (int i = 0; i < count; ++i) {
        const ServiceRow& service = serviceRows()[static_cast<std::size_t>(i % all)];
        items.push_back({serviceId(place.companyIndex, i % all),
                         std::int64_t{1 + dice.below(4)} * thousandth, service.unitPrice, 0});
    }
}

Item scarceItem(const Place& place) {
    const ProductRow& product = productRows().back();
    const int row = static_cast<int>(productRows().size()) - 1;
    return {productId(place.companyIndex, row), std::int64_t{scarceOrdered} * thousandth,
            product.unitPrice, product.unitWeight};
}

// Quarters of a unit go with prices in steps of 4 cents, so that every line
// total is whole cents.
std::vector<Item> drawItems(const Scenario& scenario, const Place& place, Dice& dice) {
    const std::vector<int> choices = choicesOf(scenario.choice);
    const int first = dice.below(static_cast<int>(choices.size()));
    std::vector<Item> items;
    drawServices(items, serviceCount(scenario, place), place, dice);
    for (int i = 0; i < itemCount(scenario, place); ++i) {
        const auto index = static_cast<std::size_t>(first + i) % choices.size();
        const ProductRow& product = productRows()[static_cast<std::size_t>(choices[index])];
        Item item{productId(place.companyIndex, choices[index]), 0,
                  product.unitPrice / 4 * 4 + 4 * dice.below(25), product.unitWeight};
        item.quantity =
            product.byWeight ? (1 + dice.below(200)) * 250 : (1 + dice.below(40)) * thousandth;
        items.push_back(item);
    }
    if (scenario.lacksStock) {
        items.front() = scarceItem(place);
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
        weight += scaled(item.unitWeight, item.quantity, thousandth);
    }
    return weight;
}

void insertItems(Database& database, int order, const Scenario& scenario,
                 const std::vector<Item>& items) {
    int position = 0;
    for (const Item& item : items) {
        const std::int64_t gross = lineTotal(item.price, item.quantity);
        database.insert(
            "order_item",
            "order_id, position, product_id, quantity, unit_price, discount,"
            " icms_discount",
            {order, ++position, item.productId, item.quantity, item.price,
             percentOf(gross, scenario.discountRate), percentOf(gross, scenario.icmsDiscountRate)});
    }
}

void insertOrder(Database& database, int order, const Scenario& scenario, const Place& place,
                 QDate today, Dice& dice) {
    const std::vector<Item> items = drawItems(scenario, place, dice);
    const Operation operation = operationOf(scenario, place);
    const bool carried = scenario.carrier != noCarrier;
    const std::int64_t net = netWeight(items);
    const int parcels = parcelCount(scenario, place);
    const int loadOrder = 7000 + dice.below(900);
    const int sale = 80000 + dice.below(9000);
    const int age = dice.below(5);
    const int packages = (1 + dice.below(12)) * thousandth;
    const char* salesman = salesmen[static_cast<std::size_t>(dice.below(4))];
    database.insert(
        "billing_order",
        "id, establishment_id, state, load_order, customer_id, carrier_id, driver, freight_payer,"
        " note_kind, note_kind_text, series_code, entry, operation, cfop, generated_on,"
        " observation, sale_observation, packages, gross_weight, net_weight, freight, insurance,"
        " expenses, parcels, first_days, step_days, payment_condition, salesman, own_order,"
        " customer_order, control_number",
        {order,
         place.establishmentId,
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
         parcels,
         scenario.firstDays,
         scenario.stepDays,
         paymentCondition(scenario.paymentCondition, parcels),
         salesman,
         scenario.ownOrder ? std::to_string(sale) : "0",
         scenario.customerOrder,
         scenario.controlNumber});
    insertItems(database, order, scenario, items);
}

void insertSeriesAndStock(Database& database, const Place& place, Dice& dice) {
    const int establishment = place.establishmentId;
    constexpr std::string_view columns = "establishment_id, code, description, next_number";
    database.insert(
        "series", columns,
        {establishment, "1", "Série 1 - Nota Fiscal de Saída", 1001 + dice.below(8000)});
    database.insert("series", columns,
                    {establishment, "2", "Série 2 - Nota Fiscal de Entrada", 1 + dice.below(900)});
    const int count = static_cast<int>(productRows().size());
    for (int row = 0; row < count; ++row) {
        const int units = row + 1 == count ? scarceStock : 5000 + dice.below(5000);
        database.insert("stock", "establishment_id, product_id, quantity",
                        {establishment, productId(place.companyIndex, row), units * thousandth});
    }
}

// The plain orders that make one establishment's list a long one.
constexpr std::array plainScenarios = {0, 2, 12, 18};

void insertLongList(Database& database, const Place& place, QDate today, Dice& dice) {
    for (int i = 0; i < longListOrders; ++i) {
        const auto row = static_cast<std::size_t>(plainScenarios[static_cast<std::size_t>(
            dice.below(static_cast<int>(plainScenarios.size())))]);
        insertOrder(database, firstOfLongList + i, orderScenarios()[row], place, today, dice);
    }
}

}  // namespace

void insertPracticeOrders(Database& database, std::uint64_t seed, QDate today) {
    Dice dice(seed);
    Place longList;
    int first = firstOrder;
    int id = 0;
    for (const EstablishmentRow& establishment : establishmentRows()) {
        const Place place{companyIndex(establishment.company), ++id, &establishment};
        insertSeriesAndStock(database, place, dice);
        int order = first;
        for (const Scenario& scenario : orderScenarios()) {
            if (applies(scenario, place)) {
                insertOrder(database, order++, scenario, place, today, dice);
            }
        }
        first += ordersApart;
        if (establishment.code == longListEstablishment &&
            establishment.company == longListCompany) {
            longList = place;
        }
    }
    insertLongList(database, longList, today, dice);
}

}  // namespace tarn::practice
