// The billing orders that are ready for a note: reading the list, cancelling one.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "gateway/sessao.h"

namespace tarn {

struct Environment;

// One order: the twelve cells of its row, as shown; an absent field is empty.
// Cells 10 to 12 (quantity and the two weights) are formatted numbers.
struct BillingOrder {
    std::array<std::string, 12> cells;

    const std::string& order() const { return cells[0]; }
    const std::string& loadOrder() const { return cells[5]; }
};

// The list as the server has it now; empty when it could not be had (the user has
// been told).
std::vector<BillingOrder> loadOrders(Environment& environment, const Sessao& session);

// Asks, cancels, tells. True: cancelled, the list must be read again.
bool cancelOrder(Environment& environment, const Sessao& session, const BillingOrder& order);

}  // namespace tarn
