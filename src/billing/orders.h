// The billing orders that are ready for a note: reading the list, cancelling one, and its
// maintenance.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "common/grid_rows.h"
#include "common/refusal.h"
#include "gateway/commands.h"
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

enum class OrderField { Quantity, GrossWeight, NetWeight };

// The first test that fails, in the order in which the fields are tested. A text that
// is no number raises TypeMismatch.
std::optional<Refusal<OrderField>> dataRefusal(const commands::OrderData& data);

// Sends the order's data and tells what went wrong. False: refused, nothing changed.
// True also where the answer was lost: the list must show what the server has.
bool saveOrder(Environment& environment, const Sessao& session, const commands::OrderData& data);

}  // namespace tarn
