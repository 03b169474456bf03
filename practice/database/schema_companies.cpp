// The tables of companies, their users, and the world they lie in.
#include <array>

#include "practice/database/schema_tables.h"

namespace tarn::practice {
namespace {

constexpr std::array ofCompanies = {
    R"(CREATE TABLE schema_version (version BIGINT NOT NULL))",

    R"(CREATE TABLE company (
        id BIGINT NOT NULL PRIMARY KEY,
        name VARCHAR(120) NOT NULL,
        server_name VARCHAR(40) NOT NULL UNIQUE))",

    R"(CREATE TABLE establishment (
        id BIGINT NOT NULL PRIMARY KEY,
        company_id BIGINT NOT NULL REFERENCES company (id),
        code BIGINT NOT NULL,
        name VARCHAR(120) NOT NULL,
        short_name VARCHAR(40) NOT NULL,
        legal_name VARCHAR(120) NOT NULL,
        tax_number VARCHAR(14) NOT NULL,
        state_registration VARCHAR(20),
        street VARCHAR(120) NOT NULL,
        street_number VARCHAR(10),
        complement VARCHAR(60),
        district VARCHAR(60) NOT NULL,
        postal_code VARCHAR(8) NOT NULL,
        town VARCHAR(60) NOT NULL,
        state VARCHAR(2) NOT NULL,
        state_name VARCHAR(40) NOT NULL,
        telephone VARCHAR(30),
        fax VARCHAR(30),
        email VARCHAR(80),
        item_lines VARCHAR(6) NOT NULL,
        service_lines VARCHAR(6),
        UNIQUE (company_id, code)))",

    R"(CREATE TABLE app_user (
        code VARCHAR(20) NOT NULL PRIMARY KEY,
        establishment_id BIGINT NOT NULL REFERENCES establishment (id),
        company_id BIGINT NOT NULL REFERENCES company (id),
        login VARCHAR(40) NOT NULL,
        password_hash VARCHAR(64) NOT NULL,
        UNIQUE (company_id, login)))",

    R"(CREATE TABLE user_right (
        user_code VARCHAR(20) NOT NULL REFERENCES app_user (code),
        right_code VARCHAR(10) NOT NULL,
        PRIMARY KEY (user_code, right_code)))",

    R"(CREATE TABLE country (
        id BIGINT NOT NULL PRIMARY KEY,
        name VARCHAR(60) NOT NULL))",

    R"(CREATE TABLE state (
        id BIGINT NOT NULL PRIMARY KEY,
        country_id BIGINT NOT NULL REFERENCES country (id),
        code VARCHAR(2) NOT NULL,
        name VARCHAR(60) NOT NULL))",

    R"(CREATE TABLE city (
        id BIGINT NOT NULL PRIMARY KEY,
        state_id BIGINT NOT NULL REFERENCES state (id),
        name VARCHAR(60) NOT NULL))",
};

}  // namespace

std::span<const char* const> companyTables() {
    return ofCompanies;
}

}  // namespace tarn::practice
