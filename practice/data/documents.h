// The open documents of every company: bills, receipts and what else is billed,
// of the collection table and of the receivables table.
#pragma once

#include <QDate>
#include <span>

#include "practice/data/customers.h"

namespace tarn::practice {

void insertDocuments(Database& database, const CompanyRow& company,
                     std::span<const PracticeCustomer> customers, QDate today, Dice& dice);

}  // namespace tarn::practice
