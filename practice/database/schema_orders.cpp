// The tables of customers, products, billing orders and notes.
#include <array>

#include "practice/database/schema_tables.h"

namespace tarn::practice {
namespace {

constexpr std::array ofOrders = {
    R"(CREATE TABLE series (
        establishment_id BIGINT NOT NULL REFERENCES establishment (id),
        code VARCHAR(5) NOT NULL,
        description VARCHAR(60) NOT NULL,
        next_number BIGINT NOT NULL,
        PRIMARY KEY (establishment_id, code)))",

    R"(CREATE TABLE cancel_reason (
        company_id BIGINT NOT NULL REFERENCES company (id),
        id BIGINT NOT NULL,
        description VARCHAR(80) NOT NULL,
        PRIMARY KEY (company_id, id)))",

    R"(CREATE TABLE customer (
        id BIGINT NOT NULL PRIMARY KEY,
        company_id BIGINT NOT NULL REFERENCES company (id),
        establishment_id BIGINT NOT NULL REFERENCES establishment (id),
        name VARCHAR(150) NOT NULL,
        search_name VARCHAR(150) NOT NULL,
        external_code VARCHAR(20),
        natural_person BIGINT NOT NULL,
        tax_number VARCHAR(14) NOT NULL,
        state_registration VARCHAR(20),
        telephone VARCHAR(40),
        credit_blocked BIGINT NOT NULL))",

    R"(CREATE TABLE customer_address (
        customer_id BIGINT NOT NULL REFERENCES customer (id),
        kind VARCHAR(1) NOT NULL,
        street VARCHAR(120) NOT NULL,
        complement VARCHAR(60),
        district VARCHAR(60) NOT NULL,
        postal_code VARCHAR(8) NOT NULL,
        town VARCHAR(60) NOT NULL,
        state VARCHAR(2) NOT NULL,
        city_id BIGINT NOT NULL REFERENCES city (id),
        PRIMARY KEY (customer_id, kind)))",

    R"(CREATE TABLE carrier (
        id BIGINT NOT NULL PRIMARY KEY,
        company_id BIGINT NOT NULL REFERENCES company (id),
        name VARCHAR(100) NOT NULL,
        tax_number VARCHAR(20),
        street VARCHAR(120),
        town VARCHAR(60),
        state VARCHAR(2),
        state_registration VARCHAR(20),
        plate VARCHAR(10),
        plate_state VARCHAR(2)))",

    R"(CREATE TABLE product (
        id BIGINT NOT NULL PRIMARY KEY,
        company_id BIGINT NOT NULL REFERENCES company (id),
        code VARCHAR(20) NOT NULL,
        description VARCHAR(120) NOT NULL,
        unit VARCHAR(5) NOT NULL,
        service BIGINT NOT NULL,
        note_position VARCHAR(5),
        fiscal_class VARCHAR(15),
        class_group VARCHAR(5),
        class_code VARCHAR(15),
        origin VARCHAR(1) NOT NULL,
        tax_situation VARCHAR(2) NOT NULL,
        icms_rate BIGINT NOT NULL,
        ipi_rate BIGINT NOT NULL,
        withheld_margin BIGINT NOT NULL,
        iss_rate BIGINT NOT NULL,
        unit_weight BIGINT NOT NULL,
        unit_price BIGINT NOT NULL,
        legal_text VARCHAR(250)))",

    R"(CREATE TABLE stock (
        establishment_id BIGINT NOT NULL REFERENCES establishment (id),
        product_id BIGINT NOT NULL REFERENCES product (id),
        quantity BIGINT NOT NULL,
        PRIMARY KEY (establishment_id, product_id)))",

    // state: A open, F turned into a note, C cancelled
    R"(CREATE TABLE billing_order (
        id BIGINT NOT NULL PRIMARY KEY,
        establishment_id BIGINT NOT NULL REFERENCES establishment (id),
        state VARCHAR(1) NOT NULL,
        load_order BIGINT,
        customer_id BIGINT NOT NULL REFERENCES customer (id),
        carrier_id BIGINT REFERENCES carrier (id),
        driver VARCHAR(60),
        freight_payer VARCHAR(1),
        note_kind VARCHAR(1) NOT NULL,
        note_kind_text VARCHAR(60) NOT NULL,
        series_code VARCHAR(5) NOT NULL,
        entry BIGINT NOT NULL,
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
        parcels BIGINT NOT NULL,
        first_days BIGINT NOT NULL,
        step_days BIGINT NOT NULL,
        payment_condition VARCHAR(80),
        salesman VARCHAR(60),
        own_order VARCHAR(20),
        customer_order VARCHAR(30),
        control_number VARCHAR(60)))",

    R"(CREATE TABLE order_item (
        order_id BIGINT NOT NULL REFERENCES billing_order (id),
        position BIGINT NOT NULL,
        product_id BIGINT NOT NULL REFERENCES product (id),
        quantity BIGINT NOT NULL,
        unit_price BIGINT NOT NULL,
        discount BIGINT NOT NULL,
        icms_discount BIGINT NOT NULL,
        PRIMARY KEY (order_id, position)))",

    R"(CREATE TABLE note (
        establishment_id BIGINT NOT NULL,
        series_code VARCHAR(5) NOT NULL,
        number BIGINT NOT NULL,
        order_id BIGINT NOT NULL REFERENCES billing_order (id),
        issued_on DATE NOT NULL,
        issued_by VARCHAR(20) NOT NULL REFERENCES app_user (code),
        cancelled BIGINT NOT NULL,
        cancelled_by VARCHAR(20) REFERENCES app_user (code),
        cancel_reason_id BIGINT,
        PRIMARY KEY (establishment_id, series_code, number),
        FOREIGN KEY (establishment_id, series_code) REFERENCES series (establishment_id, code)))",

    R"(CREATE TABLE note_parcel (
        establishment_id BIGINT NOT NULL,
        series_code VARCHAR(5) NOT NULL,
        number BIGINT NOT NULL,
        position BIGINT NOT NULL,
        document VARCHAR(20) NOT NULL,
        due_on DATE NOT NULL,
        amount BIGINT NOT NULL,
        PRIMARY KEY (establishment_id, series_code, number, position),
        FOREIGN KEY (establishment_id, series_code, number)
            REFERENCES note (establishment_id, series_code, number)))",
};

}  // namespace

std::span<const char* const> orderTables() {
    return ofOrders;
}

}  // namespace tarn::practice
