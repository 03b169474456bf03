// The label queue of every company, and the sales by which addresses are chosen.
#pragma once

#include <QDate>
#include <span>

#include "practice/data/customers.h"

namespace tarn::practice {

void insertLabels(Database& database, const CompanyRow& company,
                  std::span<const PracticeCustomer> customers, QDate today, Dice& dice);
void insertSales(Database& database, const CompanyRow& company,
                 std::span<const PracticeCustomer> customers, QDate today, Dice& dice);

}  // namespace tarn::practice
