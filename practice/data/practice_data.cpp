#include "practice/data/practice_data.h"

#include <array>

#include "practice/data/companies.h"
#include "practice/data/customers.h"
#include "practice/data/dice.h"
#include "practice/data/documents.h"
#include "practice/data/finance.h"
#include "practice/data/labels.h"
#include "practice/data/orders.h"
#include "practice/data/places.h"
#include "practice/data/tables.h"
#include "practice/data/tax_numbers.h"
#include "practice/database/stored_text.h"

namespace tarn::practice {
namespace {

constexpr std::array logons = {
    PracticeLogon{1361, 1361, "clara", "pratica", true},
    PracticeLogon{1361, 1362, "bruno", "pratica", true},
    PracticeLogon{1361, 1363, "diana", "pratica", true},
    PracticeLogon{1361, 1361, "otavio", "pratica", false},
    PracticeLogon{141, 142, "clara", "pratica", true},
    PracticeLogon{141, 143, "bruno", "pratica", true},
    PracticeLogon{141, 142, "otavio", "pratica", false},
    PracticeLogon{761, 762, "clara", "pratica", true},
    PracticeLogon{761, 763, "bruno", "pratica", true},
    PracticeLogon{761, 762, "otavio", "pratica", false},
    PracticeLogon{7, 8, "clara", "pratica", true},
    PracticeLogon{2161, 3381, "clara", "pratica", true},
    PracticeLogon{2161, 3382, "bruno", "pratica", true},
    PracticeLogon{2161, 3384, "diana", "pratica", true},
    PracticeLogon{2161, 3385, "elisa", "pratica", true},
    PracticeLogon{2161, 3341, "fabio", "pratica", true},
    PracticeLogon{2161, 3383, "gilda", "pratica", true},
    PracticeLogon{2161, 3386, "hugo", "pratica", true},
    PracticeLogon{2041, 2042, "clara", "pratica", true},
    PracticeLogon{2321, 2322, "clara", "pratica", true},
    PracticeLogon{1581, 1582, "clara", "pratica", true},
    PracticeLogon{2801, 2802, "clara", "pratica", true},
    PracticeLogon{2421, 3621, "clara", "pratica", true},
    PracticeLogon{2421, 2422, "bruno", "pratica", true},
    PracticeLogon{1521, 1522, "clara", "pratica", true},
    PracticeLogon{821, 822, "clara", "pratica", true},
    PracticeLogon{3301, 3302, "clara", "pratica", true},
    PracticeLogon{3881, 6001, "clara", "pratica", true},
    PracticeLogon{3881, 3882, "bruno", "pratica", true},
    PracticeLogon{3081, 3082, "clara", "pratica", true},
    PracticeLogon{3141, 3142, "clara", "pratica", true},
    PracticeLogon{3601, 3602, "clara", "pratica", true},
    PracticeLogon{2541, 2542, "clara", "pratica", true},
    PracticeLogon{2541, 6001, "bruno", "pratica", true},
    PracticeLogon{3681, 3682, "clara", "pratica", true},
    PracticeLogon{541, 542, "clara", "pratica", true},
    PracticeLogon{4621, 7321, "clara", "pratica", true},
    PracticeLogon{4621, 4622, "bruno", "pratica", true},
    PracticeLogon{4901, 4902, "clara", "pratica", true},
    PracticeLogon{4901, 5281, "bruno", "pratica", true},
    PracticeLogon{4901, 5282, "diana", "pratica", true},
    PracticeLogon{4901, 6001, "elisa", "pratica", true},
};

constexpr std::array reasons = {
    "Erro de digitação", "Desistência do cliente", "Preço ou condição de pagamento incorretos",
    "Mercadoria avariada na expedição", "Formulário danificado na impressão"};

// Beside the street's number, as a sender shows it; a blank one shows nothing.
constexpr std::array<const char*, 4> complements = {nullptr, "2º ANDAR", "GALPÃO B", " "};

struct TaxRates {
    const char* origin;
    const char* situation;
    int icms;
    int ipi;
    int margin;
};

TaxRates ratesOf(Tax tax, int row) {
    switch (tax) {
        case Tax::Reduced:
            return {"0", "20", 1200, 0, 0};
        case Tax::Withheld:
            return {"0", "10", 1800, 0, 4000};
        case Tax::Exempt:
            return {"0", "40", 0, 0, 0};
        case Tax::Imported:
            return {"1", "00", 1800, 1500, 0};
        case Tax::Plain:
            break;
    }
    return {"0", "00", 1800, row % 3 * 500, 0};
}

void insertCompanies(Database& database) {
    for (const CompanyRow& row : companyRows()) {
        database.insert("company", "id, name, server_name", {row.id, row.name, row.serverName});
        int reason = 0;
        for (const char* description : reasons) {
            database.insert("cancel_reason", "company_id, id, description",
                            {row.id, ++reason, description});
        }
    }
    int id = 0;
    for (const EstablishmentRow& row : establishmentRows()) {
        const char* legalName = "";
        for (const CompanyRow& company : companyRows()) {
            legalName = company.id == row.company ? company.name : legalName;
        }
        database.insert("establishment",
                        "id, company_id, code, name, short_name, legal_name, tax_number,"
                        " state_registration, street, street_number, complement,"
                        " district, postal_code, town,"
                        " state, state_name, telephone, fax, email, item_lines, service_lines",
                        {++id,
                         row.company,
                         row.code,
                         row.name,
                         row.shortName,
                         legalName,
                         companyTaxNumber(row.taxBase),
                         row.stateRegistration,
                         row.street,
                         row.number,
                         complements[static_cast<std::size_t>(id) % complements.size()],
                         row.district,
                         row.postalCode,
                         row.town,
                         row.state,
                         row.stateName,
                         "(11) 5555-0100",
                         "(11) 5555-0101",
                         "faturamento@empresa.example",
                         std::to_string(row.form.itemLines),
                         row.form.serviceLines > 0 ? Bind(std::to_string(row.form.serviceLines))
                                                   : Bind(std::nullopt)});
    }
}

void insertUsers(Database& database) {
    int number = 100;
    for (const PracticeLogon& logon : logons) {
        const std::string code = std::to_string(++number);
        database.insert(
            "app_user", "code, establishment_id, company_id, login, password_hash",
            {code, establishmentId(logon.company, logon.establishment), logon.company,
             storedLogin(logon.user), passwordHash(logon.company, logon.user, logon.password)});
        for (const char* right : {"EMI001", "EMI002", "EMI003", "EMI005"}) {
            const std::string_view name = right;
            if (logon.mayIssue || (name != "EMI001" && name != "EMI003")) {
                database.insert("user_right", "user_code, right_code", {code, right});
            }
        }
    }
}

void insertCarriers(Database& database, int companyIndex, int company) {
    int row = 0;
    for (const CarrierRow& carrier : carrierRows()) {
        database.insert("carrier",
                        "id, company_id, name, tax_number, street, town, state,"
                        " state_registration, plate, plate_state",
                        {carrierId(companyIndex, row++), company, carrier.name, carrier.taxNumber,
                         carrier.street, carrier.town, carrier.state, carrier.stateRegistration,
                         carrier.plate, carrier.plateState});
    }
}

constexpr const char* productColumns =
    "id, company_id, code, description, unit, service, note_position,"
    " fiscal_class, class_group, class_code, origin, tax_situation, icms_rate,"
    " ipi_rate, withheld_margin, iss_rate, unit_weight, unit_price, legal_text";

// A product that pays IPI has its fiscal class printed on the note, as a group.
void insertProducts(Database& database, int companyIndex, int company) {
    int row = 0;
    for (const ProductRow& product : productRows()) {
        const TaxRates rates = ratesOf(product.tax, row);
        const std::string group = std::to_string(row + 1);
        const bool grouped = rates.ipi > 0;
        database.insert(
            "product", productColumns,
            {productId(companyIndex, row), company, product.code, product.description, product.unit,
             0, group, product.fiscalClass, grouped ? Bind(group) : Bind(std::nullopt),
             grouped ? Bind(product.fiscalClass) : Bind(std::nullopt), rates.origin,
             rates.situation, rates.icms, rates.ipi, rates.margin, 0, product.unitWeight,
             product.unitPrice, product.legalText});
        ++row;
    }
}

void insertServices(Database& database, int companyIndex, int company) {
    int row = 0;
    for (const ServiceRow& service : serviceRows()) {
        database.insert("product", productColumns,
                        {serviceId(companyIndex, row++), company, service.code, service.description,
                         "SV", 1, std::nullopt, std::nullopt, std::nullopt, std::nullopt, "0", "41",
                         0, 0, 0, service.issRate, 0, service.unitPrice, std::nullopt});
    }
}

}  // namespace

std::span<const PracticeLogon> practiceLogons() {
    return logons;
}

void insertPracticeData(Database& database, std::uint64_t seed, QDate today) {
    insertCompanies(database);
    insertUsers(database);
    insertPlaces(database);
    insertBanksAndKinds(database);
    Dice dice(seed + 1);  // apart from the orders' own
    for (const CompanyRow& company : companyRows()) {
        const int index = companyIndex(company.id);
        insertCarriers(database, index, company.id);
        insertProducts(database, index, company.id);
        if (company.sellsServices) {
            insertServices(database, index, company.id);
        }
        const std::vector<PracticeCustomer> customers = insertCustomers(database, company, dice);
        insertPortfoliosAndAccounts(database, company);
        insertDocuments(database, company, customers, today, dice);
        insertLabels(database, company, customers, today, dice);
        insertSales(database, company, customers, today, dice);
    }
    insertPracticeOrders(database, seed, today);
}

}  // namespace tarn::practice
