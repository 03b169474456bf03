// Banks, collection portfolios and bank accounts of every company.
#pragma once

#include <span>

#include "practice/data/companies.h"
#include "practice/database/database.h"

namespace tarn::practice {

// Identifiers of the portfolios; companies count from 0 in their table.
constexpr int portfolioId(int companyIndex, int row) {
    return (companyIndex + 1) * 100 + row + 1;
}

struct PortfolioRow {
    const char* description;
    int bank;  // ID_PES_BAN
    const char* wallet;
    const char* agency;
    const char* account;
};

constexpr int foreignBank = 2033;  // none of the three that slips are printed for

std::span<const PortfolioRow> portfolioRows();  // alike in every company

void insertBanksAndKinds(Database& database);
void insertPortfoliosAndAccounts(Database& database, const CompanyRow& company);

}  // namespace tarn::practice
