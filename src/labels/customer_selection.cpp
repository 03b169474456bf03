#include "labels/customer_selection.h"

#include <algorithm>

#include "common/boxes.h"
#include "gateway/answer.h"
#include "gateway/failure_texts.h"

namespace tarn::labels {
namespace {

constexpr auto selectionColumns =
    gridOf<SelectionColumn>({{SelectionColumn::Tick, {"", " ", 4, Treatment::TickAlone}},
                             {SelectionColumn::PostalCode, {"CD_CEP", "Cep", 13}},
                             {SelectionColumn::Name, {"NM_PES_CPL", "Cliente", 46}},
                             {SelectionColumn::Address, {"DC_LG_CPL", "Endereço", 46}},
                             {SelectionColumn::District, {"NM_BRR", "Bairro", 26}},
                             {SelectionColumn::State, {"SG_UF", "Estado", 8}},
                             {SelectionColumn::Town, {"NM_MUN", "Cidade", 28}}});

std::vector<ListItem> load(Environment& environment, const std::string& query,
                           std::string_view textField, std::string_view dataField) {
    XmlDocument answer;
    if (!requestAnswer(environment, query, answer, failure::Tarn0009Wide)) {
        return {};
    }
    std::vector<ListItem> items = listItemsOf(answer, textField, dataField);
    items.insert(items.begin(), ListItem{"<-TODAS->", allItemsData});
    return items;
}

}  // namespace

std::vector<ListItem> loadBranches(Environment& environment, const Sessao& session) {
    return load(environment, commands::sel_filias(session), "FILIAL", "ID_ETB");
}

std::vector<ListItem> loadCountries(Environment& environment, const Sessao& session) {
    return load(environment, commands::sel_pais(session), "NM_PAIS", "ID_PAIS");
}

std::vector<ListItem> loadStates(Environment& environment, const Sessao& session,
                                 std::int32_t country) {
    return load(environment, commands::sel_estado(session, country), "NM_UF", "ID_UF");
}

std::vector<ListItem> loadTowns(Environment& environment, const Sessao& session,
                                std::int32_t state) {
    return load(environment, commands::sel_cidade(session, state), "NM_MUN", "ID_MUN");
}

std::string MontaURL(std::span<const std::int32_t> data, int position) {
    if (position > 0) {
        return std::to_string(data[static_cast<std::size_t>(position)]);
    }
    std::string text;
    for (std::size_t i = 1; i < data.size(); ++i) {
        text.append(text.empty() ? "" : ", ").append(std::to_string(data[i]));
    }
    return text;
}

std::optional<Refusal<SaleDate>> dateRefusal(const commands::LabelFilter& filter) {
    const auto sales = {filter.product, filter.amountFrom, filter.amountTo, filter.quantityFrom,
                        filter.quantityTo};
    const bool needs = std::any_of(sales.begin(), sales.end(),
                                   [](const std::string& text) { return !text.empty(); });
    if (!needs || (!filter.saleFrom.empty() && !filter.saleTo.empty())) {
        return std::nullopt;
    }
    return Refusal<SaleDate>{filter.saleFrom.empty() ? SaleDate::From : SaleDate::To,
                             "Data de Venda obrigatoria nesta ocasião!"};
}

std::span<const GridColumn> selectionGrid() {
    return selectionColumns;
}

std::vector<GridRow> customersOf(const XmlDocument& answer) {
    return gridRows(answer, selectionColumns);
}

std::vector<GridRow> searchCustomers(Environment& environment, const Sessao& session,
                                     const commands::LabelFilter& filter) {
    const std::string query = commands::sel_dados_etq(session, filter);
    tell(environment, query);
    XmlDocument answer;
    if (!requestAnswer(environment, query, answer, failure::Tarn0009Wide)) {
        return {};
    }
    return customersOf(answer);
}

}  // namespace tarn::labels
