#include "practice/commands/note_document.h"

#include <array>

#include "practice/commands/amounts.h"
#include "practice/commands/fields.h"
#include "practice/commands/order.h"

namespace tarn::practice {
namespace {

// Amounts are looked up in upper case and texts as spelled here.
constexpr std::array headFields = {
    Field{"Ent_Sai", "CASE o.entry WHEN 1 THEN 'E' ELSE 'S' END"},
    Field{"NatOper", "o.operation"},
    Field{"CFOP", "o.cfop"},
    Field{"RAZAO", "c.name"},
    Field{"IC_TIP_PES", "CASE c.natural_person WHEN 1 THEN 'F' ELSE 'J' END"},
    Field{"CGC_CPF", "c.tax_number"},
    Field{"DT_EMS_NF", "n.issued_on", Format::Date},
    Field{"ENDERECO", "a.street"},
    Field{"COMPLEMENTO", "a.complement"},
    Field{"BAIRRO", "a.district"},
    Field{"CEP", "a.postal_code"},
    Field{"MUNICIPIO", "a.town"},
    Field{"FONEFAX", "c.telephone"},
    Field{"UF", "a.state"},
    Field{"INSC_EST", "c.state_registration"},
    Field{"ENDERECO_COB", "b.street"},
    Field{"COMPLEMENTO_COB", "b.complement"},
    Field{"BAIRRO_COB", "b.district"},
    Field{"CEP_COB", "b.postal_code"},
    Field{"MUNICIPIO_COB", "b.town"},
    Field{"UF_COB", "b.state"},
    Field{"ENDERECO_ETG", "d.street"},
    Field{"COMPLEMENTO_ETG", "d.complement"},
    Field{"BAIRRO_ETG", "d.district"},
    Field{"CEP_ETG", "d.postal_code"},
    Field{"MUNICIPIO_ETG", "d.town"},
    Field{"UF_ETG", "d.state"},
    Field{"DC_CND_PAG", "o.payment_condition"},
    Field{"DC_TRP", "t.name"},
    Field{"IC_RESP_FRT", "o.freight_payer"},
    Field{"CD_PLC_VEI_TRP", "t.plate"},
    Field{"UF_PLACA_TRP", "t.plate_state"},
    Field{"NR_CGC_CPL_TRP", "t.tax_number"},
    Field{"DC_LG_TRP", "t.street"},
    Field{"NM_MUN_TRP", "t.town"},
    Field{"SG_UF_TRP", "t.state"},
    Field{"CD_ICR_EST_TRP", "t.state_registration"},
    Field{"QT_ESP", "o.packages", Format::Quantity},
    Field{"PESO_BRU", "o.gross_weight", Format::Quantity},
    Field{"PESO_LIQ", "o.net_weight", Format::Quantity},
    Field{"ID_VND_DIR", "o.own_order"},
    Field{"NR_PED_CLI", "o.customer_order"},
    Field{"VENDEDOR", "o.salesman"},
    Field{"DC_OBS", "o.observation"},
    Field{"ID_EMP_TARN", "e.company_id"},
    Field{"QTDE_PARC", "o.parcels"},
};

// Column layout of the head query: the order, the form's two counts, the fields.
constexpr int firstHeadField = 3;

constexpr std::string_view headTables =
    " FROM note n JOIN billing_order o ON o.id = n.order_id"
    " JOIN establishment e ON e.id = n.establishment_id"
    " JOIN customer c ON c.id = o.customer_id"
    " JOIN customer_address a ON a.customer_id = c.id AND a.kind = 'P'"
    " LEFT JOIN customer_address b ON b.customer_id = c.id AND b.kind = 'C'"
    " LEFT JOIN customer_address d ON d.customer_id = c.id AND d.kind = 'E'"
    " LEFT JOIN carrier t ON t.id = o.carrier_id"
    " WHERE n.establishment_id = ? AND n.series_code = ? AND n.number = ? AND n.cancelled = 0";

void addParcels(Element& head, Database& database, const NoteKey& key) {
    Rows rows = database.select(
        "SELECT position, document, amount, due_on FROM note_parcel"
        " WHERE establishment_id = ? AND series_code = ? AND number = ? ORDER BY position",
        {key.establishment, key.series, key.number});
    while (rows.next()) {
        const std::string position = rows.text(0);
        head.set("NR_DOC" + position, rows.text(1))
            .set("VL_PRN_DOC" + position, moneyText(rows.integer(2)))
            .set("DT_VNC_DOC" + position, dayText(rows.date(3)));
    }
}

Element totalsRow(const Order& order) {
    const OrderTotals totals = totalsOf(order);
    Element row{"TOTAIS", {}, {}};
    row.set("VALOR_BASE_ICMS", moneyText(totals.icmsBase))
        .set("VALOR_ICMS", moneyText(totals.icms))
        .set("VALOR_BAS_ICMS_RTD", moneyText(totals.withheldBase))
        .set("VALOR_ICMS_RTD", moneyText(totals.withheld))
        .set("VALOR_TOTAL", moneyText(totals.products))
        .set("VALOR_TOTAL_DESC", moneyText(totals.discounts))
        .set("VALOR_FRETE", moneyText(order.freight))
        .set("VALOR_SEGURO", moneyText(order.insurance))
        .set("VALOR_DES_ASC", moneyText(order.expenses))
        .set("VALOR_TOT_IPI", moneyText(totals.ipi))
        .set("VALOR_TOT_NF", moneyText(totals.note))
        .set("VL_IMPOSTO_CREDITAR", moneyText(totals.icmsBase));
    return row;
}

Element itemRow(const Order& order, const OrderItem& item) {
    Element row{"ITEM", {}, {}};
    row.set("CD_PRO", item.code)
        .set("DESCRICAO", item.description)
        .set("POS_NF", item.notePosition)
        .set("CL_FISCAL", item.fiscalClass)
        .set("GF_AGRUP", item.classGroup)
        .set("ID_CLA_FIS", item.classCode)
        .set("CFOP_ITEM", order.cfop)
        .set("IC_ORI_PRO", item.origin)
        .set("SIT_TRI", item.taxSituation)
        .set("IC_TP_CAD", item.service ? "S" : "P")
        .set("UNIDADE", item.unit)
        .set("QTDE", quantityText(item.quantity))
        .set("VALOR_UN", moneyText(item.unitPrice))
        .set("VL_DSC", moneyText(item.discount + item.icmsDiscount))
        .set("ICMS", moneyText(item.icmsRate))
        .set("AQ_IPI", moneyText(item.ipiRate))
        .set("IPI", moneyText(item.ipiRate))
        .set("VL_IPI", moneyText(item.ipi()))
        .set("PESO", quantityText(item.unitWeight))
        .set("DC_TXT_LEG_NF", item.legalText);
    if (item.service) {
        row.set("AQ_ISS", moneyText(item.issRate))
            .set("VL_ISS", moneyText(item.iss()))
            .set("VL_LIQ_IT", moneyText(item.net()));
    }
    return row;
}

}  // namespace

std::optional<Element> noteDocument(Database& database, const NoteKey& key) {
    Rows rows = database.select("SELECT o.id, e.item_lines, e.service_lines, " +
                                    selectList(headFields) + std::string(headTables),
                                {key.establishment, key.series, key.number});
    if (!rows.next()) {
        return std::nullopt;
    }
    const std::optional<Order> order = loadOrder(database, key.establishment, rows.integer(0));
    Element head{"NOTA", {}, {}};
    setFields(head, rows, headFields, firstHeadField);
    addParcels(head, database, key);
    Element form{"FORMULARIO", {}, {}};
    form.set("QT_MAX_IT", rows.text(1)).set("QT_MAX_IT_NF_SRV", rows.nullableText(2));
    Element root = documentAnswer();
    root.add(std::move(head)).add(totalsRow(*order)).add(std::move(form));
    for (const OrderItem& item : order->items) {
        root.add(itemRow(*order, item));
    }
    return root;
}

}  // namespace tarn::practice
