// The billing orders that are ready for a note: reading the list, cancelling one.
#pragma once

#include <span>
#include <vector>

#include "common/grid_rows.h"
#include "gateway/sessao.h"

namespace tarn {

struct Environment;

// The columns of the list; the last four have no heading.
enum class OrderColumn {
    Order,
    Customer,
    Establishment,
    NoteKind,
    Generated,
    LoadOrder,
    Carrier,
    Driver,
    Observation,
    Quantity,
    GrossWeight,
    NetWeight,
    End
};
std::span<const GridColumn> orderGrid();

// The list as the server has it now; empty when it could not be had (the user has
// been told).
std::vector<GridRow> loadOrders(Environment& environment, const Sessao& session);

// Asks, cancels, tells. True: cancelled, the list must be read again.
bool cancelOrder(Environment& environment, const Sessao& session, const GridRow& order);

}  // namespace tarn
