// Maintenance of an order: the tests on what was typed, and the write.
#pragma once

#include <optional>
#include <string_view>

#include "gateway/commands.h"
#include "gateway/sessao.h"

namespace tarn {

struct Environment;

enum class OrderField { Quantity, GrossWeight, NetWeight };

struct OrderRefusal {
    OrderField field;
    std::string_view text;  // of the box
};

// The first test that fails, in the order in which the fields are tested. A text that
// is no number raises TypeMismatch.
std::optional<OrderRefusal> dataRefusal(const commands::OrderData& data);

// Sends the order's data and tells what went wrong. False: refused, nothing changed.
// True also where the answer was lost: the list must show what the server has.
bool saveOrder(Environment& environment, const Sessao& session, const commands::OrderData& data);

}  // namespace tarn
