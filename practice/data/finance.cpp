#include "practice/data/finance.h"

#include <array>

namespace tarn::practice {
namespace {

struct BankRow {
    int id;
    const char* name;
    int officialCode;
};

// The first three are those that the desk prints slips for.
constexpr std::array banks = {BankRow{1016, "BANCO DO VALE DO IPÊ", 341},
                              BankRow{1084, "SANTANDER", 33}, BankRow{1095, "CAIXA DA PRAÇA", 151},
                              BankRow{foreignBank, "BANCO DE LA PLATA", 745}};

struct KindRow {
    int id;
    const char* description;
};

constexpr std::array kinds = {
    KindRow{1, "DUPLICATA"},
    KindRow{12, "RECIBO"},
    KindRow{201, "DUPLICATA DE SERVIÇO"},
    KindRow{202, "DUPLICATA DE FRETE"},
    KindRow{203, "DUPLICATA DE INDUSTRIALIZAÇÃO"},
    KindRow{262, "DUPLICATA RURAL"},
    KindRow{341, "FATURA DE LOCAÇÃO"},
    KindRow{342, "NOTA DE DÉBITO"},
    KindRow{361, "PARCELA DE CONTRATO"},
};

constexpr std::array portfolios = {
    PortfolioRow{"VALE DO IPÊ - CARTEIRA 57", 1016, "57", "1123", "45678-9"},
    PortfolioRow{"SANTANDER - CARTEIRA 101", 1084, "101", "0384", "1300221-7"},
    PortfolioRow{"CAIXA DA PRAÇA - CARTEIRA 057", 1095, "057", "0271-3", "0091840-2"},
    PortfolioRow{"VALE DO IPÊ - CARTEIRA 112", 1016, "112", "1123", "45678-9"},
    PortfolioRow{"DE LA PLATA - SEM BOLETO", foreignBank, "57", "7450", "88123-4"},
};

struct AccountRow {
    int bank;
    const char* agency;
    const char* number;
    const char* description;
    bool active;
    bool oneBranchOnly;  // the company's first establishment
};

constexpr std::array accounts = {
    AccountRow{1084, "0384", "1300221-7", "CONTA MOVIMENTO", true, false},
    AccountRow{1095, "0271-3", "0091840-2", nullptr, true, false},
    AccountRow{1016, "1123", "45678-9", "FOLHA & ENCARGOS", true, false},
    AccountRow{1016, "1123", "00912-0", "CONTA DA MATRIZ", true, true},
    AccountRow{foreignBank, "7450", "88123-4", nullptr, true, false},
    AccountRow{1084, "0384", "0004410-1", "CONTA ENCERRADA", false, false},
};

}  // namespace

std::span<const PortfolioRow> portfolioRows() {
    return portfolios;
}

void insertBanksAndKinds(Database& database) {
    for (const BankRow& row : banks) {
        database.insert("bank", "id, name, official_code", {row.id, row.name, row.officialCode});
    }
    for (const KindRow& row : kinds) {
        database.insert("document_kind", "id, description", {row.id, row.description});
    }
}

void insertPortfoliosAndAccounts(Database& database, const CompanyRow& company) {
    int row = 0;
    for (const PortfolioRow& portfolio : portfolios) {
        database.insert(
            "portfolio", "id, company_id, description, bank_id, wallet, agency, account",
            {portfolioId(companyIndex(company.id), row++), company.id, portfolio.description,
             portfolio.bank, portfolio.wallet, portfolio.agency, portfolio.account});
    }
    for (const AccountRow& account : accounts) {
        database.insert(
            "account", "company_id, bank_id, agency, number, establishment_id, description, active",
            {company.id, account.bank, account.agency, account.number,
             account.oneBranchOnly ? Bind(branchesOf(company.id).first) : Bind(std::nullopt),
             account.description, account.active ? 1 : 0});
    }
}

}  // namespace tarn::practice
