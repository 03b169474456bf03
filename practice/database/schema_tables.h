// The statements that make the tables, subject by subject: a table stands behind
// those it refers to.
//
// Standard SQL, taken alike by SQLite and PostgreSQL. Money is in cents,
// quantities and weights in thousandths, rates in hundredths of a percent. An
// establishment's code is what the desk knows; its id is the database's own.
// Whole numbers are all BIGINT: any number that a request carries can be compared
// with them.
#pragma once

#include <span>

namespace tarn::practice {

std::span<const char* const> companyTables();
std::span<const char* const> orderTables();
std::span<const char* const> financeTables();
std::span<const char* const> labelTables();

}  // namespace tarn::practice
