#include "practice/commands/order.h"

#include <algorithm>

#include "practice/commands/amounts.h"

namespace tarn::practice {
namespace {

constexpr std::int64_t wholeRate = 10000;  // 100 percent

std::vector<OrderItem> loadItems(Database& database, std::int64_t orderId) {
    Rows rows = database.select(
        "SELECT p.id, p.code, p.description, p.unit, p.service, p.note_position, p.fiscal_class,"
        " p.class_group, p.class_code, p.origin, p.tax_situation, p.legal_text, p.icms_rate,"
        " p.ipi_rate, p.iss_rate, p.withheld_margin, p.unit_weight, i.quantity, i.unit_price,"
        " i.discount, i.icms_discount"
        " FROM order_item i JOIN product p ON p.id = i.product_id"
        " WHERE i.order_id = ? ORDER BY i.position",
        {orderId});
    std::vector<OrderItem> items;
    while (rows.next()) {
        OrderItem& item = items.emplace_back();
        item.productId = rows.integer(0);
        item.code = rows.text(1);
        item.description = rows.text(2);
        item.unit = rows.text(3);
        item.service = rows.integer(4) != 0;
        item.notePosition = rows.nullableText(5);
        item.fiscalClass = rows.nullableText(6);
        item.classGroup = rows.nullableText(7);
        item.classCode = rows.nullableText(8);
        item.origin = rows.text(9);
        item.taxSituation = rows.text(10);
        item.legalText = rows.nullableText(11);
        item.icmsRate = rows.integer(12);
        item.ipiRate = rows.integer(13);
        item.issRate = rows.integer(14);
        item.withheldMargin = rows.integer(15);
        item.unitWeight = rows.integer(16);
        item.quantity = rows.integer(17);
        item.unitPrice = rows.integer(18);
        item.discount = rows.integer(19);
        item.icmsDiscount = rows.integer(20);
    }
    return items;
}

}  // namespace

std::int64_t OrderItem::gross() const {
    return lineTotal(unitPrice, quantity);
}

std::int64_t OrderItem::icms() const {
    return percentOf(icmsBase(), icmsRate);
}

std::int64_t OrderItem::ipi() const {
    return service ? 0 : percentOf(net(), ipiRate);
}

std::int64_t OrderItem::withheldBase() const {
    return service || withheldMargin == 0 ? 0
                                          : percentOf(net() + ipi(), wholeRate + withheldMargin);
}

std::int64_t OrderItem::withheld() const {
    return std::max<std::int64_t>(0, percentOf(withheldBase(), icmsRate) - icms());
}

std::int64_t OrderItem::iss() const {
    return service ? percentOf(net(), issRate) : 0;
}

std::optional<Order> loadOrder(Database& database, std::int64_t establishment, std::int64_t id) {
    Rows rows = database.select(
        "SELECT o.state, o.series_code, o.cfop, o.customer_id, c.credit_blocked, o.freight,"
        " o.insurance, o.expenses, o.parcels, o.first_days, o.step_days, o.entry"
        " FROM billing_order o JOIN customer c ON c.id = o.customer_id"
        " WHERE o.id = ? AND o.establishment_id = ?",
        {id, establishment});
    if (!rows.next()) {
        return std::nullopt;
    }
    Order order;
    order.id = id;
    order.state = rows.text(0);
    order.seriesCode = rows.text(1);
    order.cfop = rows.text(2);
    order.customerId = rows.integer(3);
    order.creditBlocked = rows.integer(4) != 0;
    order.freight = rows.integer(5);
    order.insurance = rows.integer(6);
    order.expenses = rows.integer(7);
    order.parcels = rows.integer(8);
    order.firstDays = rows.integer(9);
    order.stepDays = rows.integer(10);
    order.entry = rows.integer(11) != 0;
    order.items = loadItems(database, id);
    return order;
}

OrderTotals totalsOf(const Order& order) {
    OrderTotals totals;
    for (const OrderItem& item : order.items) {
        if (item.service) {
            totals.services += item.net();
            continue;
        }
        totals.products += item.gross();
        totals.discounts += item.discount + item.icmsDiscount;
        totals.icmsBase += item.icmsBase();
        totals.icms += item.icms();
        totals.withheldBase += item.withheldBase();
        totals.withheld += item.withheld();
        totals.ipi += item.ipi();
    }
    totals.note = totals.products - totals.discounts + totals.services + totals.ipi +
                  totals.withheld + order.freight + order.insurance + order.expenses;
    return totals;
}

std::vector<Parcel> parcelsOf(const Order& order, QDate from) {
    std::vector<Parcel> parcels;
    const std::int64_t total = totalsOf(order).note;
    for (std::int64_t i = 0; i < order.parcels; ++i) {
        const std::int64_t share = total / order.parcels;
        const std::int64_t rest = i == 0 ? total % order.parcels : 0;
        parcels.push_back({from.addDays(order.firstDays + i * order.stepDays), share + rest});
    }
    return parcels;
}

std::vector<std::int64_t> apportioned(std::int64_t amount, const std::vector<OrderItem>& items) {
    std::int64_t whole = 0;
    for (const OrderItem& item : items) {
        whole += item.gross();
    }
    std::vector<std::int64_t> shares;
    std::int64_t left = amount;
    for (std::size_t i = 0; i < items.size(); ++i) {
        const bool last = i + 1 == items.size();
        const std::int64_t share = last || whole == 0 ? left : amount * items[i].gross() / whole;
        shares.push_back(share);
        left -= share;
    }
    return shares;
}

std::string missingStock(Database& database, std::int64_t establishment, std::int64_t orderId) {
    Rows rows = database.select(
        "SELECT p.code, p.description, COALESCE(s.quantity, 0), SUM(i.quantity)"
        " FROM order_item i JOIN billing_order o ON o.id = i.order_id AND o.entry = 0"
        " JOIN product p ON p.id = i.product_id"
        " LEFT JOIN stock s ON s.product_id = p.id AND s.establishment_id = ?"
        " WHERE i.order_id = ? AND p.service = 0"
        " GROUP BY p.code, p.description, s.quantity"
        " HAVING SUM(i.quantity) > COALESCE(s.quantity, 0) ORDER BY p.code",
        {establishment, orderId});
    std::string text;
    while (rows.next()) {
        text += text.empty() ? "" : "\n";
        text += rows.text(0) + " - " + rows.text(1) + ": saldo " + quantityText(rows.integer(2)) +
                ", pedido " + quantityText(rows.integer(3));
    }
    return text;
}

}  // namespace tarn::practice
