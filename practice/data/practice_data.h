// The data the practice server starts with: companies, their clerks, customers,
// products, billing orders, documents, accounts and labels, the same for the same
// seed and day.
#pragma once

#include <QDate>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "practice/database/database.h"

namespace tarn::practice {

// Who may log on. The company's code, the user and the password are what the
// clerk types; letters' case matters in the password alone.
struct PracticeLogon {
    int company;
    int establishment;
    std::string_view user;
    std::string_view password;
    bool mayIssue;  // without it the rights EMI001 and EMI003 are missing
};

std::span<const PracticeLogon> practiceLogons();

// Fills the empty tables. The caller holds the transaction.
void insertPracticeData(Database& database, std::uint64_t seed, QDate today);

}  // namespace tarn::practice
