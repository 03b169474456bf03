// A billing order with its items, and the amounts that follow from them. Money
// in cents, quantities and weights in thousandths, rates in hundredths of a
// percent.
#pragma once

#include <QDate>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "practice/database/database.h"

namespace tarn::practice {

struct OrderItem {
    std::int64_t productId = 0;
    std::string code;
    std::string description;
    std::string unit;
    bool service = false;
    std::optional<std::string> notePosition;
    std::optional<std::string> fiscalClass;
    std::optional<std::string> classGroup;
    std::optional<std::string> classCode;
    std::string origin;
    std::string taxSituation;
    std::optional<std::string> legalText;
    std::int64_t icmsRate = 0;
    std::int64_t ipiRate = 0;
    std::int64_t issRate = 0;
    std::int64_t withheldMargin = 0;
    std::int64_t unitWeight = 0;
    std::int64_t quantity = 0;
    std::int64_t unitPrice = 0;
    std::int64_t discount = 0;
    std::int64_t icmsDiscount = 0;

    std::int64_t gross() const;
    std::int64_t net() const { return gross() - discount - icmsDiscount; }
    std::int64_t icmsBase() const { return service || icmsRate == 0 ? 0 : net(); }
    std::int64_t icms() const;
    std::int64_t ipi() const;
    std::int64_t withheldBase() const;
    std::int64_t withheld() const;
    std::int64_t iss() const;
};

struct Order {
    std::int64_t id = 0;
    std::string state;
    std::string seriesCode;
    std::string cfop;
    std::int64_t customerId = 0;
    bool creditBlocked = false;
    bool entry = false;  // goods that come back
    std::int64_t freight = 0;
    std::int64_t insurance = 0;
    std::int64_t expenses = 0;
    std::int64_t parcels = 0;
    std::int64_t firstDays = 0;
    std::int64_t stepDays = 0;
    std::vector<OrderItem> items;
};

struct OrderTotals {
    std::int64_t icmsBase = 0;
    std::int64_t icms = 0;
    std::int64_t withheldBase = 0;
    std::int64_t withheld = 0;
    std::int64_t products = 0;   // before the discounts
    std::int64_t discounts = 0;  // on the products
    std::int64_t services = 0;   // after their discounts
    std::int64_t ipi = 0;
    std::int64_t note = 0;  // all that the recipient pays
};

struct Parcel {
    QDate due;
    std::int64_t amount = 0;
};

std::optional<Order> loadOrder(Database& database, std::int64_t establishment, std::int64_t id);
OrderTotals totalsOf(const Order& order);

// The total split evenly; the cents left over fall on the first one.
std::vector<Parcel> parcelsOf(const Order& order, QDate from);

// `amount` split among the items by their gross; the last one takes the rest.
std::vector<std::int64_t> apportioned(std::int64_t amount, const std::vector<OrderItem>& items);

// What the stock lacks for the order, one line a product; empty: enough of all.
std::string missingStock(Database& database, std::int64_t establishment, std::int64_t orderId);

}  // namespace tarn::practice
