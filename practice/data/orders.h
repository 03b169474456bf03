// Series, stock and billing orders of every establishment, drawn by seed over
// the given scenarios.
#pragma once

#include <QDate>
#include <cstdint>

#include "practice/database/database.h"

namespace tarn::practice {

// Identifiers of the tables' rows; companies count from 0 in their table.
constexpr int customerId(int companyIndex, int row) {
    return (companyIndex + 1) * 1000 + row + 1;
}
constexpr int carrierId(int companyIndex, int row) {
    return (companyIndex + 1) * 100 + row + 1;
}
constexpr int productId(int companyIndex, int row) {
    return (companyIndex + 1) * 1000 + row + 1;
}
constexpr int serviceId(int companyIndex, int row) {
    return productId(companyIndex, 900 + row);
}

void insertPracticeOrders(Database& database, std::uint64_t seed, QDate today);

}  // namespace tarn::practice
