// Customers, carriers, products and services, alike in every company of the
// practice data. Null pointers are null columns.
#pragma once

#include <cstdint>
#include <span>

namespace tarn::practice {

struct AddressRow {
    const char* street;
    const char* complement;
    const char* district;
    const char* postalCode;
    const char* town;
    const char* state;
};

struct CustomerRow {
    const char* name;
    bool naturalPerson;
    const char* taxBase;  // twelve digits, of a natural person nine
    const char* stateRegistration;
    const char* telephone;
    AddressRow address;
    bool creditBlocked = false;
    AddressRow billing = {};  // without a street: none of its own
    AddressRow delivery = {};
};

struct CarrierRow {
    const char* name;
    const char* taxNumber;
    const char* street;
    const char* town;
    const char* state;
    const char* stateRegistration;
    const char* plate;
    const char* plateState;
};

// What distinguishes a product for the note: how it is taxed.
enum class Tax { Plain, Reduced, Withheld, Exempt, Imported };

struct ProductRow {
    const char* code;
    const char* description;
    const char* unit;
    const char* fiscalClass;
    int unitWeight;  // thousandths of a kilogram
    int unitPrice;   // cents
    Tax tax;
    bool byWeight;  // sold in quarters of its unit
    const char* legalText;
};

struct ServiceRow {
    const char* code;
    const char* description;
    int issRate;    // hundredths of a percent
    int unitPrice;  // cents
};

std::span<const CustomerRow> customerRows();
std::span<const CarrierRow> carrierRows();
std::span<const ProductRow> productRows();
std::span<const ServiceRow> serviceRows();

}  // namespace tarn::practice
