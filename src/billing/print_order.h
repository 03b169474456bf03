// From the selected order to its sheet on paper.
#pragma once

#include <string>

#include "gateway/sessao.h"

namespace tarn {

struct Environment;

// Fetches the order's document and prints it; every failure to have it is shown.
void printSelectedOrder(Environment& environment, const Sessao& session, const std::string& order);

}  // namespace tarn
