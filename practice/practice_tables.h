// The fixed part of the practice data, as tables. Null pointers are null columns.
#pragma once

#include <cstdint>
#include <span>

namespace tarn::practice {

struct CompanyRow {
    int id;
    const char* name;
    const char* serverName;
};

struct EstablishmentRow {
    int id;
    int company;
    const char* name;
    const char* shortName;
    const char* taxBase;  // twelve digits of the tax number
    const char* stateRegistration;
    const char* street;
    const char* number;
    const char* district;
    const char* postalCode;
    const char* town;
    const char* state;
    const char* stateName;
    int itemLines;  // of the establishment's pre-printed form
};

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

std::span<const CompanyRow> companyRows();
std::span<const EstablishmentRow> establishmentRows();
std::span<const CustomerRow> customerRows();
std::span<const CarrierRow> carrierRows();
std::span<const ProductRow> productRows();

}  // namespace tarn::practice
