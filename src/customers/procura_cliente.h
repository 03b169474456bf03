// Customers found by part of their name.
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "common/grid_rows.h"
#include "gateway/xml_document.h"

namespace tarn {

struct Environment;
struct Sessao;

// The one chosen: what the searches filter by and what they show.
struct Customer {
    std::string id;  // ID_PES_CLI; empty: all customers
    std::string name;
    bool operator==(const Customer&) const = default;
};

// Sends the search text as typed ("&" as "|", nothing for none); true when the answer
// was read, otherwise the user has been told.
bool ProcuraCliente(Environment& environment, const Sessao& session, XmlDocument& answer,
                    const std::optional<std::string>& text);

// The columns of the grid. Nothing fills the establishment.
enum class CustomerColumn { Name, CompanyKind, Id, Establishment, End };
std::span<const GridColumn> customerGrid();

std::vector<GridRow> customerRows(const XmlDocument& answer);

// What a click on the search button does: `show` gets the rows for the grid, also none,
// before the user is told that there are none. Not called: the grid stays as it is, and the
// user has been told why. False: the name is too short.
using ShowCustomers = std::function<void(std::vector<GridRow>)>;
bool searchCustomer(Environment& environment, const Sessao& session, const std::string& text,
                    const ShowCustomers& show);

}  // namespace tarn
