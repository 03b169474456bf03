// The commands of the billing-order desk: list, observations, maintenance,
// cancellation, order sheet.
#include <array>

#include "practice/commands/amounts.h"
#include "practice/commands/command.h"
#include "practice/commands/fields.h"
#include "practice/commands/order.h"
#include "runtime/text.h"

namespace tarn::practice {
namespace {

constexpr std::int64_t largestQuantity = 9'999'999'999;  // 9.999.999,999
constexpr std::size_t largestObservation = 500;          // characters

constexpr std::array listFields = {
    Field{"ID_ORD_FAT", "o.id"},
    Field{"NM_PES_CPL", "c.name"},
    Field{"NM_RDU", "e.short_name"},
    Field{"DC_TIP_NF", "o.note_kind_text"},
    Field{"DT_GER_OFT", "o.generated_on", Format::Date},
    Field{"ID_ORD_CRG", "o.load_order"},
    Field{"TRANSPORTADORA", "t.name"},
    Field{"NM_PES_MOT", "o.driver"},
    Field{"DC_OBS", "o.observation"},
    Field{"QT_ESP", "o.packages", Format::Quantity},
    Field{"PESO_BRU", "o.gross_weight", Format::Quantity},
    Field{"PESO_LIQ", "o.net_weight", Format::Quantity},
};

struct RequestedOrder {
    Establishment establishment;
    std::int64_t id = 0;
    std::string state;
    std::optional<std::string> loadOrder;
    std::optional<std::string> saleObservation;
};

RequestedOrder requestedOrder(const Query& query, CommandContext& context) {
    const auto establishment = requestedEstablishment(query, context);
    RequestedOrder order{establishment, 0, {}, {}, {}};
    const std::string& text = query.value("ID_ORD_FAT");
    order.id = wholeNumber(text).value_or(-1);
    Rows rows = context.database.select(
        "SELECT state, load_order, sale_observation FROM billing_order"
        " WHERE id = ? AND establishment_id = ?",
        {order.id, order.establishment.id});
    if (!rows.next()) {
        throw Refusal{"A Ordem de Faturamento nº " + text +
                      " não existe neste estabelecimento. Atualize a lista."};
    }
    order.state = rows.text(0);
    order.loadOrder = rows.nullableText(1);
    order.saleObservation = rows.nullableText(2);
    return order;
}

Refusal notOpen(const RequestedOrder& order) {
    const std::string what = order.state == "F" ? " já virou Nota Fiscal" : " já foi cancelada";
    return Refusal{"A Ordem de Faturamento nº " + std::to_string(order.id) + what +
                   ". Atualize a lista."};
}

Reply listOrders(const Query& query, CommandContext& context) {
    const auto establishment = requestedEstablishment(query, context);
    return readRowset(context.database, listFields,
                      "FROM billing_order o JOIN customer c ON c.id = o.customer_id"
                      " JOIN establishment e ON e.id = o.establishment_id"
                      " LEFT JOIN carrier t ON t.id = o.carrier_id"
                      " WHERE o.establishment_id = ? AND o.state = 'A' ORDER BY o.id",
                      {establishment.id});
}

Reply cancelOrder(const Query& query, CommandContext& context) {
    const auto order = requestedOrder(query, context);
    if (query.value("id_ord_crg") != order.loadOrder.value_or("")) {
        throw Refusal{"A ordem de carga da Ordem de Faturamento nº " + std::to_string(order.id) +
                      " mudou. Atualize a lista."};
    }
    Transaction transaction(context.database);
    const int touched = context.database.execute(
        "UPDATE billing_order SET state = 'C' WHERE id = ? AND state = 'A'", {order.id});
    if (touched != 1) {
        throw notOpen(order);
    }
    transaction.commit();
    return statusAnswer();
}

Reply observationAnswer(std::string text) {
    Element observation{"OBS", {}, {}};
    observation.set("OBSERVACAO", std::move(text));
    Element root = statusAnswer();
    root.add(std::move(observation));
    return root;
}

Reply saleObservation(const Query& query, CommandContext& context) {
    const auto requested = requestedOrder(query, context);
    return observationAnswer(requested.saleObservation.value_or(""));
}

Reply stockObservation(const Query& query, CommandContext& context) {
    const auto order = requestedOrder(query, context);
    return observationAnswer(missingStock(context.database, order.establishment.id, order.id));
}

// The three screen amounts in thousandths, in the order of the catalogue.
std::array<std::int64_t, 3> typedQuantities(const Query& query) {
    constexpr std::array<std::pair<std::string_view, std::string_view>, 3> quantityFields = {{
        {"QT_ESP", "Quantidade Espécie"},
        {"PESO_BRU", "Peso Bruto"},
        {"PESO_LIQ", "Peso Líquido"},
    }};
    std::array<std::int64_t, 3> values{};
    for (std::size_t i = 0; i < quantityFields.size(); ++i) {
        const auto value = screenQuantity(query.value(quantityFields[i].first));
        if (!value || *value > largestQuantity) {
            throw Refusal{std::string(quantityFields[i].second) +
                          " sem valor válido. Digite um valor de 0,000 a 9.999.999,999."};
        }
        values[i] = *value;
    }
    return values;
}

Reply maintainOrder(const Query& query, CommandContext& context) {
    const auto order = requestedOrder(query, context);
    const auto quantities = typedQuantities(query);
    const std::string observation = undoBars(query.value("DC_OBS"));
    if (lengthOf(observation) > largestObservation) {
        throw Refusal{"A observação passa de 500 caracteres. Diminua o texto."};
    }
    const auto& [packages, gross, net] = quantities;
    Transaction transaction(context.database);
    const int touched = context.database.execute(
        "UPDATE billing_order SET observation = ?, packages = ?, gross_weight = ?, net_weight = ?"
        " WHERE id = ? AND state = 'A'",
        {observation.empty() ? Bind(std::nullopt) : Bind(observation), packages, gross, net,
         order.id});
    if (touched != 1) {
        throw notOpen(order);
    }
    transaction.commit();
    return statusAnswer();
}

constexpr std::array sheetFields = {
    Field{"RAZAO", "c.name"},
    Field{"DT_EMS_NF", "o.generated_on", Format::Date},
    Field{"VENDEDOR", "o.salesman"},
    Field{"NR_CTRL_INT", "o.control_number"},
};

void addSheetItems(Element& root, const Order& order) {
    const auto freight = apportioned(order.freight, order.items);
    const auto insurance = apportioned(order.insurance, order.items);
    const auto expenses = apportioned(order.expenses, order.items);
    for (std::size_t i = 0; i < order.items.size(); ++i) {
        const OrderItem& item = order.items[i];
        Element row{"ITEM", {}, {}};
        row.set("QTDE", quantityText(item.quantity))
            .set("CD_PRO", item.code)
            .set("DESCRICAO", item.description)
            .set("UNITARIO", moneyText(item.unitPrice))
            .set("VL_DSC", moneyText(item.discount))
            .set("VL_IPI", moneyText(item.ipi()))
            .set("VL_ICMS_RTD", moneyText(item.withheld()))
            .set("VL_DSC_ICMS", moneyText(item.icmsDiscount))
            .set("VL_FRT", moneyText(freight[i]))
            .set("VL_DSP_ACS", moneyText(expenses[i]))
            .set("VL_SEG", moneyText(insurance[i]));
        root.add(std::move(row));
    }
}

Reply orderSheet(const Query& query, CommandContext& context) {
    const auto wanted = requestedOrder(query, context);
    Rows rows = context.database.select(
        "SELECT " + selectList(sheetFields) +
            " FROM billing_order o JOIN customer c ON c.id = o.customer_id WHERE o.id = ?",
        {wanted.id});
    const auto order = loadOrder(context.database, wanted.establishment.id, wanted.id);
    if (!rows.next() || !order) {
        throw notOpen(wanted);
    }
    Element head{"ORDEM", {}, {}};
    setFields(head, rows, sheetFields);
    Element root = documentAnswer();
    root.add(std::move(head));
    addSheetItems(root, *order);
    for (const Parcel& parcel : parcelsOf(*order, context.today)) {
        Element row{"PARCELA", {}, {}};
        row.set("DT_PRL", dayText(parcel.due)).set("VL_PRL", moneyText(parcel.amount));
        root.add(std::move(row));
    }
    return root;
}

constexpr std::array orderTable = {
    Command{"sel_ordem_fatu", Shape::Rows, listOrders},
    Command{"sp_can_oft", Shape::Status, cancelOrder},
    Command{"Seleciona_Obs_Vnd_X_Ord", Shape::Status, saleObservation},
    Command{"Seleciona_Obs_Ord_X_Est", Shape::Status, stockObservation},
    Command{"MANUTENCAO_OFT", Shape::Status, maintainOrder},
    Command{"sel_impr_ordem_fatu", Shape::Document, orderSheet},
};

}  // namespace

std::span<const Command> orderCommands() {
    return orderTable;
}

}  // namespace tarn::practice
