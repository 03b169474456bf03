// The tables of the label queue, and the sales by which addresses are chosen.
#include <array>

#include "practice/database/schema_tables.h"

namespace tarn::practice {
namespace {

constexpr std::array ofLabels = {
    // kind: C clients, F suppliers
    R"(CREATE TABLE label_reason (
        company_id BIGINT NOT NULL REFERENCES company (id),
        id BIGINT NOT NULL,
        kind VARCHAR(1) NOT NULL,
        description VARCHAR(80) NOT NULL,
        PRIMARY KEY (company_id, id),
        UNIQUE (company_id, description)))",

    R"(CREATE TABLE label (
        company_id BIGINT NOT NULL,
        reason_id BIGINT NOT NULL,
        sequence BIGINT NOT NULL,
        queued_on DATE NOT NULL,
        name VARCHAR(150) NOT NULL,
        address VARCHAR(150) NOT NULL,
        street VARCHAR(120) NOT NULL,
        street_number VARCHAR(10),
        complement VARCHAR(60),
        district VARCHAR(60),
        town VARCHAR(60) NOT NULL,
        state VARCHAR(2) NOT NULL,
        postal_code VARCHAR(9) NOT NULL,
        code VARCHAR(20),
        country VARCHAR(60),
        PRIMARY KEY (company_id, reason_id, sequence),
        FOREIGN KEY (company_id, reason_id) REFERENCES label_reason (company_id, id)))",

    // One line of a sale; of a note of this server with its order.
    R"(CREATE TABLE sale (
        customer_id BIGINT NOT NULL REFERENCES customer (id),
        product_id BIGINT NOT NULL REFERENCES product (id),
        sold_on DATE NOT NULL,
        quantity BIGINT NOT NULL,
        amount BIGINT NOT NULL,
        order_id BIGINT REFERENCES billing_order (id)))",
};

}  // namespace

std::span<const char* const> labelTables() {
    return ofLabels;
}

}  // namespace tarn::practice
