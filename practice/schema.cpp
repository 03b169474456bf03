#include "practice/schema.h"

#include <array>

namespace tarn::practice {
namespace {

// Standard SQL, taken alike by SQLite and PostgreSQL. Money is in cents,
// quantities and weights in thousandths, rates in hundredths of a percent. An
// establishment's code is what the desk knows; its id is the database's own.
constexpr std::array kTables = {R"(CREATE TABLE schema_version (version INTEGER NOT NULL))",

                                R"(CREATE TABLE company (
        id INTEGER NOT NULL PRIMARY KEY,
        name VARCHAR(120) NOT NULL,
        server_name VARCHAR(40) NOT NULL UNIQUE))",

                                R"(CREATE TABLE establishment (
        id INTEGER NOT NULL PRIMARY KEY,
        company_id INTEGER NOT NULL REFERENCES company (id),
        code INTEGER NOT NULL,
        name VARCHAR(120) NOT NULL,
        short_name VARCHAR(40) NOT NULL,
        legal_name VARCHAR(120) NOT NULL,
        tax_number VARCHAR(14) NOT NULL,
        state_registration VARCHAR(20),
        street VARCHAR(120) NOT NULL,
        street_number VARCHAR(10),
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
        establishment_id INTEGER NOT NULL REFERENCES establishment (id),
        company_id INTEGER NOT NULL REFERENCES company (id),
        login VARCHAR(40) NOT NULL,
        password_hash VARCHAR(64) NOT NULL,
        UNIQUE (company_id, login)))",

                                R"(CREATE TABLE user_right (
        user_code VARCHAR(20) NOT NULL REFERENCES app_user (code),
        right_code VARCHAR(10) NOT NULL,
        PRIMARY KEY (user_code, right_code)))",

                                R"(CREATE TABLE series (
        establishment_id INTEGER NOT NULL REFERENCES establishment (id),
        code VARCHAR(5) NOT NULL,
        description VARCHAR(60) NOT NULL,
        next_number INTEGER NOT NULL,
        PRIMARY KEY (establishment_id, code)))",

                                R"(CREATE TABLE cancel_reason (
        company_id INTEGER NOT NULL REFERENCES company (id),
        id INTEGER NOT NULL,
        description VARCHAR(80) NOT NULL,
        PRIMARY KEY (company_id, id)))",

                                R"(CREATE TABLE customer (
        id INTEGER NOT NULL PRIMARY KEY,
        company_id INTEGER NOT NULL REFERENCES company (id),
        name VARCHAR(150) NOT NULL,
        natural_person INTEGER NOT NULL,
        tax_number VARCHAR(14) NOT NULL,
        state_registration VARCHAR(20),
        telephone VARCHAR(40),
        credit_blocked INTEGER NOT NULL))",

                                R"(CREATE TABLE customer_address (
        customer_id INTEGER NOT NULL REFERENCES customer (id),
        kind VARCHAR(1) NOT NULL,
        street VARCHAR(120) NOT NULL,
        complement VARCHAR(60),
        district VARCHAR(60) NOT NULL,
        postal_code VARCHAR(8) NOT NULL,
        town VARCHAR(60) NOT NULL,
        state VARCHAR(2) NOT NULL,
        PRIMARY KEY (customer_id, kind)))",

                                R"(CREATE TABLE carrier (
        id INTEGER NOT NULL PRIMARY KEY,
        company_id INTEGER NOT NULL REFERENCES company (id),
        name VARCHAR(100) NOT NULL,
        tax_number VARCHAR(20),
        street VARCHAR(120),
        town VARCHAR(60),
        state VARCHAR(2),
        state_registration VARCHAR(20),
        plate VARCHAR(10),
        plate_state VARCHAR(2)))",

                                R"(CREATE TABLE product (
        id INTEGER NOT NULL PRIMARY KEY,
        company_id INTEGER NOT NULL REFERENCES company (id),
        code VARCHAR(20) NOT NULL,
        description VARCHAR(120) NOT NULL,
        unit VARCHAR(5) NOT NULL,
        service INTEGER NOT NULL,
        note_position VARCHAR(5),
        fiscal_class VARCHAR(15),
        class_group VARCHAR(5),
        class_code VARCHAR(15),
        origin VARCHAR(1) NOT NULL,
        tax_situation VARCHAR(2) NOT NULL,
        icms_rate INTEGER NOT NULL,
        ipi_rate INTEGER NOT NULL,
        withheld_margin INTEGER NOT NULL,
        iss_rate INTEGER NOT NULL,
        unit_weight BIGINT NOT NULL,
        unit_price BIGINT NOT NULL,
        legal_text VARCHAR(250)))",

                                R"(CREATE TABLE stock (
        establishment_id INTEGER NOT NULL REFERENCES establishment (id),
        product_id INTEGER NOT NULL REFERENCES product (id),
        quantity BIGINT NOT NULL,
        PRIMARY KEY (establishment_id, product_id)))",

                                // state: A open, F turned into a note, C cancelled
                                R"(CREATE TABLE billing_order (
        id INTEGER NOT NULL PRIMARY KEY,
        establishment_id INTEGER NOT NULL REFERENCES establishment (id),
        state VARCHAR(1) NOT NULL,
        load_order INTEGER,
        customer_id INTEGER NOT NULL REFERENCES customer (id),
        carrier_id INTEGER REFERENCES carrier (id),
        driver VARCHAR(60),
        freight_payer VARCHAR(1),
        note_kind VARCHAR(1) NOT NULL,
        note_kind_text VARCHAR(60) NOT NULL,
        series_code VARCHAR(5) NOT NULL,
        entry INTEGER NOT NULL,
        operation VARCHAR(80) NOT NULL,
        cfop VARCHAR(10) NOT NULL,
        generated_on DATE NOT NULL,
        observation VARCHAR(1000),
        sale_observation VARCHAR(2000),
        packages BIGINT NOT NULL,
        gross_weight BIGINT NOT NULL,
        net_weight BIGINT NOT NULL,
        freight BIGINT NOT NULL,
        insurance BIGINT NOT NULL,
        expenses BIGINT NOT NULL,
        parcels INTEGER NOT NULL,
        first_days INTEGER NOT NULL,
        step_days INTEGER NOT NULL,
        payment_condition VARCHAR(80),
        salesman VARCHAR(60),
        own_order VARCHAR(20),
        customer_order VARCHAR(30),
        control_number VARCHAR(60)))",

                                R"(CREATE TABLE order_item (
        order_id INTEGER NOT NULL REFERENCES billing_order (id),
        position INTEGER NOT NULL,
        product_id INTEGER NOT NULL REFERENCES product (id),
        quantity BIGINT NOT NULL,
        unit_price BIGINT NOT NULL,
        discount BIGINT NOT NULL,
        icms_discount BIGINT NOT NULL,
        PRIMARY KEY (order_id, position)))",

                                R"(CREATE TABLE note (
        establishment_id INTEGER NOT NULL,
        series_code VARCHAR(5) NOT NULL,
        number INTEGER NOT NULL,
        order_id INTEGER NOT NULL REFERENCES billing_order (id),
        issued_on DATE NOT NULL,
        issued_by VARCHAR(20) NOT NULL REFERENCES app_user (code),
        cancelled INTEGER NOT NULL,
        cancelled_by VARCHAR(20) REFERENCES app_user (code),
        cancel_reason_id INTEGER,
        PRIMARY KEY (establishment_id, series_code, number),
        FOREIGN KEY (establishment_id, series_code) REFERENCES series (establishment_id, code)))",

                                R"(CREATE TABLE note_parcel (
        establishment_id INTEGER NOT NULL,
        series_code VARCHAR(5) NOT NULL,
        number INTEGER NOT NULL,
        position INTEGER NOT NULL,
        document VARCHAR(20) NOT NULL,
        due_on DATE NOT NULL,
        amount BIGINT NOT NULL,
        PRIMARY KEY (establishment_id, series_code, number, position),
        FOREIGN KEY (establishment_id, series_code, number)
            REFERENCES note (establishment_id, series_code, number)))"};

}  // namespace

void createSchema(Database& database) {
    for (const char* table : kTables) {
        database.execute(table);
    }
    database.execute("INSERT INTO schema_version (version) VALUES (?)", {kSchemaVersion});
}

SchemaState checkSchema(Database& database, const std::string& file) {
    if (database.isEmpty()) {
        return SchemaState::Empty;
    }
    const std::string advice =
        " Escolha outro arquivo com --banco, ou apague este para que seja criado de novo.";
    if (!database.hasTable("schema_version")) {
        throw DatabaseError("O banco de dados \"" + file +
                            "\" não é um banco do servidor de prática." + advice);
    }
    Rows rows = database.select("SELECT version FROM schema_version");
    const std::int64_t version = rows.next() ? rows.integer(0) : 0;
    if (version != kSchemaVersion) {
        throw DatabaseError("O banco de dados \"" + file + "\" é da versão " +
                            std::to_string(version) + "; este servidor usa a versão " +
                            std::to_string(kSchemaVersion) + "." + advice);
    }
    return SchemaState::Ready;
}

}  // namespace tarn::practice
