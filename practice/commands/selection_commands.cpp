// The commands of the bulk label selection: branches, countries, states, towns,
// and the customers who live and bought as asked.
#include <array>

#include "practice/commands/command.h"
#include "practice/commands/conditions.h"
#include "practice/commands/fields.h"
#include "runtime/text.h"

namespace tarn::practice {
namespace {

Reply listBranches(const Query& query, CommandContext& context) {
    return listNamedBranches(query, "nId_Emp_Tarn", context);
}

constexpr std::array countryFields = {Field{"NM_PAIS", "name"}, Field{"ID_PAIS", "id"}};
constexpr std::array stateFields = {Field{"NM_UF", "name"}, Field{"ID_UF", "id"}};
constexpr std::array cityFields = {Field{"NM_MUN", "name"}, Field{"ID_MUN", "id"}};

Reply listCountries(const Query& query, CommandContext& context) {
    requestedCompany(query, context);
    return readRowset(context.database, countryFields, "FROM country ORDER BY name", {});
}

Reply listStates(const Query& query, CommandContext& context) {
    requestedCompany(query, context);
    return readRowset(context.database, stateFields,
                      "FROM state WHERE country_id = ? ORDER BY name, id",
                      {wholeNumber(query.value("Pais")).value_or(-1)});
}

Reply listCities(const Query& query, CommandContext& context) {
    requestedCompany(query, context);
    return readRowset(context.database, cityFields,
                      "FROM city WHERE state_id = ? ORDER BY name, id",
                      {wholeNumber(query.value("Estado")).value_or(-1)});
}

constexpr std::array addresseeFields = {
    Field{"CD_CEP", "a.postal_code"}, Field{"NM_PES_CPL", "c.name"}, Field{"DC_LG_CPL", "a.street"},
    Field{"NM_BRR", "a.district"},    Field{"SG_UF", "a.state"},     Field{"NM_MUN", "a.town"},
};

constexpr std::string_view addresseeTables =
    "FROM customer c JOIN customer_address a ON a.customer_id = c.id AND a.kind = 'P'"
    " JOIN establishment e ON e.id = c.establishment_id"
    " JOIN city m ON m.id = a.city_id JOIN state u ON u.id = m.state_id WHERE ";
constexpr std::string_view saleTables = "sale s JOIN product p ON p.id = s.product_id";
constexpr std::string_view postalCode = "CAST(a.postal_code AS BIGINT)";

// A key left out, or with nothing behind it, restricts nothing.
void addPlace(Conditions& conditions, std::string_view sql, const std::string& text) {
    if (!trimBlanks(text).empty()) {
        conditions.add(sql, wholeNumber(text).value_or(-1));
    }
}

// Whoever has one sale of the product, on a day, for a value and of a quantity as
// asked. A search that says nothing of a sale finds also who never bought.
void addSales(Conditions& conditions, const Query& query) {
    Conditions sale("s.customer_id = c.id", {});
    if (const std::string product(trimBlanks(query.value("nIdMatPro"))); !product.empty()) {
        sale.add("p.code = ?", product);
    }
    sale.addDays("s.sold_on", query, "dDtDe", "dDtAte");
    sale.addMoney("s.amount", query, "nVlrDe", "nVlrAte");
    sale.addQuantities("s.quantity", query, "nQtDe", "nQtAte");
    if (!sale.binds().empty() || !sale.readable()) {
        conditions.addExists(saleTables, sale);
    }
}

Reply findAddressees(const Query& query, CommandContext& context) {
    const auto company = requestedCompany(query, context);
    const auto branches = numberList(query.value("nIdEtbTarn"));
    if (!branches) {
        throw Refusal{"A filial não foi informada. Escolha a filial na lista."};
    }
    Conditions conditions("c.company_id = ?", {company});
    conditions.addAnyOf("e.code", *branches);
    addPlace(conditions, "u.country_id = ?", query.value("nIdPais"));
    addPlace(conditions, "u.id = ?", query.value("nIdUf"));
    addPlace(conditions, "m.id = ?", query.value("nIdMun"));
    conditions.addNumbers(postalCode, query, "nCepDe", "nCepAte");
    addSales(conditions, query);
    if (!conditions.readable()) {
        throw Refusal{"Um dos filtros da pesquisa não é válido. Confira datas e valores."};
    }
    const std::string order = query.value("nIdOrd") == "CEP"
                                  ? std::string(postalCode) + ", c.search_name, c.id"
                                  : "c.search_name, c.id";
    return readRowset(context.database, addresseeFields,
                      std::string(addresseeTables) + conditions.sql() + " ORDER BY " + order,
                      conditions.binds());
}

constexpr std::array selectionTable = {
    Command{"sel_filias", Shape::Rows, listBranches},
    Command{"sel_pais", Shape::Rows, listCountries},
    Command{"sel_estado", Shape::Rows, listStates},
    Command{"sel_cidade", Shape::Rows, listCities},
    Command{"sel_dados_etq", Shape::Rows, findAddressees},
};

}  // namespace

std::span<const Command> selectionCommands() {
    return selectionTable;
}

}  // namespace tarn::practice
