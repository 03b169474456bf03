// Selects customers by where they live and by what they bought.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "common/grid_rows.h"
#include "common/list_items.h"
#include "common/refusal.h"
#include "gateway/commands.h"

namespace tarn {
class XmlDocument;
struct Environment;
}  // namespace tarn

namespace tarn::labels {

inline constexpr std::int32_t allItemsData = -1;

// The four lists: "<-TODAS->" and what the server has; empty after a failed request.
std::vector<ListItem> loadBranches(Environment& environment, const Sessao& session);
std::vector<ListItem> loadCountries(Environment& environment, const Sessao& session);
std::vector<ListItem> loadStates(Environment& environment, const Sessao& session,
                                 std::int32_t country);
std::vector<ListItem> loadTowns(Environment& environment, const Sessao& session,
                                std::int32_t state);

// The identity of the item chosen in a list, as text; at the first position those of all
// others, joined by a comma and a blank. `data` are the item data of the whole list; an
// empty list has no position and gives the empty text.
std::string MontaURL(std::span<const std::int32_t> data, int position);

// Before a search: the sale's date that the other filters ask for.
enum class SaleDate { From, To };
std::optional<Refusal<SaleDate>> dateRefusal(const commands::LabelFilter& filter);

// A customer is a row of the grid; its tick is the user's own.
enum class SelectionColumn { Tick, PostalCode, Name, Address, District, State, Town, End };
std::span<const GridColumn> selectionGrid();
std::vector<GridRow> customersOf(const XmlDocument& answer);

// Shows the query, then sends it. No customers after a failed request.
std::vector<GridRow> searchCustomers(Environment& environment, const Sessao& session,
                                     const commands::LabelFilter& filter);

}  // namespace tarn::labels
