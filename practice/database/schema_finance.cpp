// The tables of documents, collection portfolios, bank accounts and cheques.
#include <array>

#include "practice/database/schema_tables.h"

namespace tarn::practice {
namespace {

constexpr std::array ofFinance = {
    R"(CREATE TABLE document_kind (
        id BIGINT NOT NULL PRIMARY KEY,
        description VARCHAR(60) NOT NULL))",

    R"(CREATE TABLE bank (
        id BIGINT NOT NULL PRIMARY KEY,
        name VARCHAR(60) NOT NULL,
        official_code BIGINT NOT NULL))",

    R"(CREATE TABLE portfolio (
        id BIGINT NOT NULL PRIMARY KEY,
        company_id BIGINT NOT NULL REFERENCES company (id),
        description VARCHAR(60) NOT NULL,
        bank_id BIGINT NOT NULL REFERENCES bank (id),
        wallet VARCHAR(5) NOT NULL,
        agency VARCHAR(10) NOT NULL,
        account VARCHAR(20) NOT NULL))",

    // receivable: 1 of the receivables table, 0 of the collection table; only a receivable
    // has a control number. An account without an establishment serves them all.
    R"(CREATE TABLE document (
        establishment_id BIGINT NOT NULL REFERENCES establishment (id),
        kind_id BIGINT NOT NULL REFERENCES document_kind (id),
        number VARCHAR(20) NOT NULL,
        receivable BIGINT NOT NULL,
        control_number BIGINT,
        customer_id BIGINT NOT NULL REFERENCES customer (id),
        series_code VARCHAR(5),
        note_number VARCHAR(20),
        issued_on DATE NOT NULL,
        due_on DATE NOT NULL,
        amount BIGINT NOT NULL,
        reference VARCHAR(500),
        interest_rate BIGINT,
        fine_rate BIGINT,
        daily_interest BIGINT,
        expenses BIGINT,
        portfolio_id BIGINT REFERENCES portfolio (id),
        bank_id BIGINT REFERENCES bank (id),
        agency VARCHAR(10),
        slip_number VARCHAR(20),
        entered_by VARCHAR(20) REFERENCES app_user (code),
        PRIMARY KEY (establishment_id, kind_id, number),
        UNIQUE (establishment_id, control_number)))",

    R"(CREATE TABLE account (
        company_id BIGINT NOT NULL REFERENCES company (id),
        bank_id BIGINT NOT NULL REFERENCES bank (id),
        agency VARCHAR(10) NOT NULL,
        number VARCHAR(20) NOT NULL,
        establishment_id BIGINT REFERENCES establishment (id),
        description VARCHAR(60),
        active BIGINT NOT NULL,
        PRIMARY KEY (company_id, bank_id, agency, number)))",

    R"(CREATE TABLE cheque (
        company_id BIGINT NOT NULL,
        bank_id BIGINT NOT NULL,
        agency VARCHAR(10) NOT NULL,
        account VARCHAR(20) NOT NULL,
        number BIGINT NOT NULL,
        series VARCHAR(15) NOT NULL,
        amount BIGINT NOT NULL,
        payee VARCHAR(50),
        deposit_on DATE NOT NULL,
        purpose VARCHAR(250),
        establishment_id BIGINT NOT NULL REFERENCES establishment (id),
        issued_on DATE NOT NULL,
        issued_by VARCHAR(20) NOT NULL REFERENCES app_user (code),
        PRIMARY KEY (company_id, bank_id, agency, account, number, series),
        FOREIGN KEY (company_id, bank_id, agency, account)
            REFERENCES account (company_id, bank_id, agency, number)))",
};

}  // namespace

std::span<const char* const> financeTables() {
    return ofFinance;
}

}  // namespace tarn::practice
